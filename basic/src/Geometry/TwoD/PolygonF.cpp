// Polygons for Geometry::TwoD::PolygonF::New, and the registered polygon
// area and convex hull (see Basic/Geometry/Polygon.h).
#include "Geometry/TwoD/PointFCollectionImpl.h"
#include "Geometry/TwoD/ShapeImpl.h"

#include "Quilon_/Geometry/TwoD/Polygon.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"

#include <cmath>

namespace Quilon_::Basic::Geometry::TwoD {

namespace {

using QG::TwoD::IPolygonF;

class CPolygonF : public CBoxedShape2D<CPolygonF, IPolygonF, System::ICloneable> {
public:
    CPolygonF(System::Ref<Drawing::IPointFCollection> points, QG::Axes axes)
        : CBoxedShape2D(axes), m_points(std::move(points))
    {
    }

    System::Ref<Drawing::IPointFCollection> Points() override { return m_points; }
    void SetPoints(System::Ref<Drawing::IPointFCollection> points) override
    {
        m_points = std::move(points);
        FireChanged();
    }

    System::Ref<System::ICloneable> Clone() override
    {
        return System::Ref<System::ICloneable>(
            new CPolygonF(CPointFCollection::Make(m_points->Points()), Axes()));
    }

protected:
    std::vector<PointF> AllPoints() override { return m_points->Points(); }
    void MapPoints(const PointMap& map) override
    {
        std::vector<PointF> points = m_points->Points();
        for (PointF& p : points)
            p = map(p);
        m_points->SetPoints(points);
    }
    double ShapeArea() override { return std::abs(SignedArea(m_points->Points())); }
    double ShapePerimeter() override { return PathLength(m_points->Points(), true); }
    bool ShapeContains(PointF point) override { return EvenOddContains({m_points->Points()}, point); }

private:
    System::Ref<Drawing::IPointFCollection> m_points;
};

System::Ref<IPolygonF> NewEmptyPolygon(QG::Axes axes)
{
    return System::Ref<IPolygonF>(new CPolygonF(CPointFCollection::Make({}), axes));
}

System::Ref<IPolygonF> NewPolygonOf(System::Ref<Drawing::IPointFCollection> points, QG::Axes axes)
{
    return System::Ref<IPolygonF>(new CPolygonF(std::move(points), axes));
}

double PolygonArea(System::Ref<IPolygonF> polygon)
{
    return std::abs(SignedArea(polygon->Points()->Points()));
}

System::Ref<IPolygonF> PolygonConvexHull(System::Ref<IPolygonF> polygon)
{
    return NewPolygonOf(CPointFCollection::Make(ConvexHull(polygon->Points()->Points())), polygon->Axes());
}

void RegisterPolygonF()
{
    QG::TwoD::PolygonF::New.Register(L"Polygon", &NewEmptyPolygon);
    QG::TwoD::PolygonF::New.Register(L"Polygon", &NewPolygonOf);
    QG::TwoD::PolygonF::SetAreaFunction1(&PolygonArea);
    QG::TwoD::PolygonF::SetConvexHullFunction1(&PolygonConvexHull);
}

const System::Template::Initializer<::Library> polygonFInitializer(&RegisterPolygonF, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry::TwoD
