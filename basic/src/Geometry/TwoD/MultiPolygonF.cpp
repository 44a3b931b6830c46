// Multi-polygons for Geometry::TwoD::MultiPolygonF::New, and the registered
// area and containment, by the even-odd rule (see Basic/Geometry/Polygon.h).
#include "Geometry/TwoD/LoopsImpl.h"
#include "Geometry/TwoD/PointFCollectionImpl.h"
#include "Geometry/TwoD/ShapeImpl.h"

#include "Quilon_/Geometry/TwoD/MultiPolygon.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"

namespace Quilon_::Basic::Geometry::TwoD {

namespace {

using QG::TwoD::ILoops;
using QG::TwoD::IMultiPolygonF;

// The points of each loop, one virtual call per loop.
std::vector<Loop> ReadLoops(const System::Ref<ILoops>& loops)
{
    std::vector<Loop> read;
    const std::int64_t count = loops->Count();
    read.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        read.push_back(loops->Item(i)->Points());
    return read;
}

class CMultiPolygonF : public CBoxedShape2D<CMultiPolygonF, IMultiPolygonF, System::ICloneable> {
public:
    CMultiPolygonF(System::Ref<ILoops> loops, QG::Axes axes) : CBoxedShape2D(axes), m_loops(std::move(loops))
    {
    }

    System::Ref<ILoops> Loops() override { return m_loops; }
    void SetLoops(System::Ref<ILoops> loops) override
    {
        m_loops = std::move(loops);
        FireChanged();
    }
    std::int64_t AddLoop(System::Ref<Drawing::IPointFCollection> loop) override
    {
        const std::int64_t index = m_loops->Add(loop);
        FireChanged();
        return index;
    }
    bool RemoveLoop(std::int64_t index) override
    {
        if (index < 0 || index >= m_loops->Count())
            return false;
        m_loops->RemoveAt(index);
        FireChanged();
        return true;
    }

    System::Ref<Drawing::IPointFCollection> Points() override
    {
        if (m_loops->Count() == 0)
            m_loops->Add(CPointFCollection::Make({}));
        return m_loops->Item(0);
    }
    void SetPoints(System::Ref<Drawing::IPointFCollection> points) override
    {
        if (m_loops->Count() == 0)
            m_loops->Add(points);
        else
            m_loops->SetItem(0, points);
        FireChanged();
    }

    System::Ref<System::ICloneable> Clone() override
    {
        std::vector<System::Ref<Drawing::IPointFCollection>> copies;
        for (Loop& loop : ReadLoops(m_loops))
            copies.push_back(CPointFCollection::Make(std::move(loop)));
        return System::Ref<System::ICloneable>(
            new CMultiPolygonF(System::Ref<ILoops>(new CLoops(std::move(copies))), Axes()));
    }

protected:
    std::vector<PointF> AllPoints() override
    {
        std::vector<PointF> all;
        for (const Loop& loop : ReadLoops(m_loops))
            all.insert(all.end(), loop.begin(), loop.end());
        return all;
    }
    void MapPoints(const PointMap& map) override
    {
        for (std::int64_t i = 0; i < m_loops->Count(); ++i) {
            System::Ref<Drawing::IPointFCollection> loop = m_loops->Item(i);
            std::vector<PointF> points = loop->Points();
            for (PointF& p : points)
                p = map(p);
            loop->SetPoints(points);
        }
    }
    double ShapeArea() override { return EvenOddArea(ReadLoops(m_loops)); }
    double ShapePerimeter() override
    {
        double length = 0.0;
        for (const Loop& loop : ReadLoops(m_loops))
            length += PathLength(loop, true);
        return length;
    }
    bool ShapeContains(PointF point) override { return EvenOddContains(ReadLoops(m_loops), point); }

private:
    System::Ref<ILoops> m_loops;
};

System::Ref<IMultiPolygonF> NewEmptyMultiPolygon(QG::Axes axes)
{
    return System::Ref<IMultiPolygonF>(new CMultiPolygonF(System::Ref<ILoops>(new CLoops()), axes));
}

System::Ref<IMultiPolygonF> NewMultiPolygonOf(System::Ref<ILoops> loops, QG::Axes axes)
{
    return System::Ref<IMultiPolygonF>(new CMultiPolygonF(std::move(loops), axes));
}

double MultiPolygonArea(System::Ref<IMultiPolygonF> region)
{
    return EvenOddArea(ReadLoops(region->Loops()));
}

bool MultiPolygonContains(System::Ref<IMultiPolygonF> region, const Drawing::Point<float>& point)
{
    return EvenOddContains(ReadLoops(region->Loops()), point);
}

void RegisterMultiPolygonF()
{
    QG::TwoD::MultiPolygonF::New.Register(L"Multi-polygon", &NewEmptyMultiPolygon);
    QG::TwoD::MultiPolygonF::New.Register(L"Multi-polygon", &NewMultiPolygonOf);
    QG::TwoD::MultiPolygonF::SetAreaFunction1(&MultiPolygonArea);
    QG::TwoD::MultiPolygonF::SetContainsFunction1(&MultiPolygonContains);
}

const System::Template::Initializer<::Library> multiPolygonFInitializer(&RegisterMultiPolygonF, nullptr,
                                                                        0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry::TwoD
