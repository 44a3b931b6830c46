// Point shapes for Geometry::TwoD::PointF::New.
#include "Geometry/TwoD/ShapeImpl.h"

#include "Quilon_/Geometry/TwoD/Point.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"

#include <cmath>

namespace Quilon_::Basic::Geometry::TwoD {

namespace {

class CPointF : public CShape2D<CPointF, QG::TwoD::IPointF, System::ICloneable> {
public:
    CPointF(PointF point, QG::Axes axes) : CShape2D(axes), m_point(point), m_invalidated(Sender()) {}

    float X() override { return m_point.x; }
    void SetX(float x) override { Place(PointF(x, m_point.y)); }
    float Y() override { return m_point.y; }
    void SetY(float y) override { Place(PointF(m_point.x, y)); }

    System::Ref<QG::ICoordinatesF> Position() override
    {
        return QG::CoordinatesF::New(m_point.x, m_point.y, Axes());
    }
    void SetPosition(System::Ref<QG::ICoordinatesF> position) override
    {
        Place(PointF(position->X(), position->Y()));
    }

    bool Selected() override { return m_selected; }
    void SetSelected(bool selected) override { m_selected = selected; }
    bool HitTest(double x, double y, double tolerance) override
    {
        return std::hypot(x - m_point.x, y - m_point.y) <= tolerance;
    }

    bool Visible() override { return m_visible; }
    void SetVisible(bool visible) override
    {
        if (visible == m_visible)
            return;
        m_visible = visible;
        if (m_invalidated)
            m_invalidated.Fire(System::EventArgs::Empty());
    }
    Windows::InvalidatedEvent& Invalidated() override { return m_invalidated; }

    System::Ref<System::ICloneable> Clone() override
    {
        return System::Ref<System::ICloneable>(new CPointF(m_point, Axes()));
    }

protected:
    std::vector<PointF> AllPoints() override { return {m_point}; }
    void MapPoints(const PointMap& map) override { m_point = map(m_point); }
    double ShapeArea() override { return 0.0; }
    double ShapePerimeter() override { return 0.0; }
    bool ShapeContains(PointF point) override { return point == m_point; }

private:
    System::Interface* Sender() { return static_cast<QG::IShapeND*>(this); }
    void Place(PointF point)
    {
        m_point = point;
        FireChanged();
    }

    PointF m_point;
    bool m_selected = false;
    bool m_visible = true;
    Windows::InvalidatedEvent m_invalidated;
};

System::Ref<QG::TwoD::IPointF> NewAtOrigin(QG::Axes axes)
{
    return System::Ref<QG::TwoD::IPointF>(new CPointF(PointF(), axes));
}

System::Ref<QG::TwoD::IPointF> NewAt(float x, float y, QG::Axes axes)
{
    return System::Ref<QG::TwoD::IPointF>(new CPointF(PointF(x, y), axes));
}

void RegisterPointF()
{
    QG::TwoD::PointF::New.Register(L"Point", &NewAtOrigin);
    QG::TwoD::PointF::New.Register(L"Point", &NewAt);
}

const System::Template::Initializer<::Library> pointFInitializer(&RegisterPointF, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry::TwoD
