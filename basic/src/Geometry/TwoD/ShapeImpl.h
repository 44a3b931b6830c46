// What the 2-D shapes of the reference library share: every geometric
// operation of the shape interfaces written once over the shape's points,
// which each class gives through a few hooks. The hooks are called once per
// operation, never per point.
//
//   class CPolygonF : public CBoxedShape2D<CPolygonF, IPolygonF, System::ICloneable> {
//       std::vector<PointF> AllPoints() override;                  // every point, once
//       void MapPoints(const PointMap& map) override;              // replace each by map(p)
//       double ShapeArea() override; ...
//   };
#pragma once

#include "Geometry/TwoD/PolygonMath.h"

#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace Quilon_::Basic::Geometry::TwoD {

namespace QG = ::Quilon_::Geometry;
using PointMap = std::function<PointF(PointF)>;

// The smallest and largest x and y of some points.
struct Extent {
    PointF low, high;
    bool empty = true;

    explicit Extent(const std::vector<PointF>& points)
    {
        for (PointF p : points) {
            low = empty ? p : PointF(std::min(low.x, p.x), std::min(low.y, p.y));
            high = empty ? p : PointF(std::max(high.x, p.x), std::max(high.y, p.y));
            empty = false;
        }
    }
    double Width() const { return double(high.x) - low.x; }
    double Height() const { return double(high.y) - low.y; }
};

// IShapeND and TwoD::IShape over the hooks.
template <class Derived, class... Interfaces>
class CShape2D : public System::Template::ObjectImpl<Derived, Interfaces...> {
public:
    explicit CShape2D(QG::Axes axes)
        : m_axes(axes), m_moved(Sender()), m_resized(Sender()), m_changed(Sender())
    {
    }

    QG::Axes Axes() override { return m_axes; }
    void SetAxes(QG::Axes axes) override { m_axes = axes; }
    std::int64_t Dimension() override { return 2; }

    System::Ref<QG::IBoxD> Bounds() override
    {
        const Extent extent(AllPoints());
        if (extent.empty)
            return QG::BoxD::New(m_axes);
        return QG::BoxD::New(double(extent.low.x), double(extent.low.y), double(extent.high.x),
                             double(extent.high.y), m_axes);
    }

    System::Ref<QG::ICoordinatesD> Center() override
    {
        const Extent extent(AllPoints());
        return QG::CoordinatesD::New((double(extent.low.x) + extent.high.x) / 2,
                                     (double(extent.low.y) + extent.high.y) / 2, m_axes);
    }

    void Move(System::Ref<QG::ICoordinatesD> offset) override { Shift(offset->X(), offset->Y(), offset); }

    void Transform(System::Ref<Math::IMatrixD> matrix) override
    {
        double m[3][2];
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 2; ++column)
                m[row][column] = matrix->Value(row, column);
        MapPoints([&m](PointF p) {
            return PointF(float(m[0][0] * p.x + m[1][0] * p.y + m[2][0]),
                          float(m[0][1] * p.x + m[1][1] * p.y + m[2][1]));
        });
        FireChanged();
    }

    bool Contains(System::Ref<QG::ICoordinatesD> location) override
    {
        return ShapeContains(PointF(float(location->X()), float(location->Y())));
    }

    bool IsEmpty() override { return AllPoints().empty(); }
    QG::MoveEvent& Moved() override { return m_moved; }
    QG::ResizeEvent& Resized() override { return m_resized; }
    QG::ShapeChangeEvent& Changed() override { return m_changed; }

    QG::TwoD::EditingModeEnum EditingMode() override { return m_editingMode; }
    void SetEditingMode(QG::TwoD::EditingModeEnum mode) override { m_editingMode = mode; }
    void Offset(double dx, double dy) override { Shift(dx, dy, nullptr); }
    double Area() override { return ShapeArea(); }
    double Perimeter() override { return ShapePerimeter(); }

protected:
    virtual std::vector<PointF> AllPoints() = 0;
    virtual void MapPoints(const PointMap& map) = 0;
    virtual double ShapeArea() = 0;
    virtual double ShapePerimeter() = 0;
    virtual bool ShapeContains(PointF point) = 0;

    // Moves every point; `given` is the offset to report, made here when
    // the caller had none and a listener needs one.
    void Shift(double dx, double dy, System::Pointer<QG::ICoordinatesD, 0> given)
    {
        MapPoints([dx, dy](PointF p) { return PointF(float(p.x + dx), float(p.y + dy)); });
        if (m_moved)
            m_moved.Fire(QG::MoveEventArgs::New(given ? System::Ref<QG::ICoordinatesD>(given)
                                                      : QG::CoordinatesD::New(dx, dy, m_axes)));
        FireChanged();
    }

    void FireResized()
    {
        if (m_resized)
            m_resized.Fire(QG::ResizeEventArgs::New(Bounds()));
        FireChanged();
    }

    void FireChanged()
    {
        if (m_changed)
            m_changed.Fire(System::EventArgs::Empty());
    }

private:
    System::Interface* Sender() { return static_cast<QG::IShapeND*>(this); }

    QG::Axes m_axes;
    QG::TwoD::EditingModeEnum m_editingMode = QG::TwoD::emNone;
    QG::MoveEvent m_moved;
    QG::ResizeEvent m_resized;
    QG::ShapeChangeEvent m_changed;
};

// Adds the sizing of ISizeableND, ISizeable and IBoxedF: every change of
// extent maps the bounding rectangle onto the new one.
template <class Derived, class... Interfaces>
class CBoxedShape2D : public CShape2D<Derived, Interfaces...> {
public:
    using CShape2D<Derived, Interfaces...>::CShape2D;

    System::Ref<QG::ICoordinatesD> Size() override
    {
        const Extent extent(this->AllPoints());
        return QG::CoordinatesD::New(extent.Width(), extent.Height(), this->Axes());
    }

    void SetSize(System::Ref<QG::ICoordinatesD> size) override
    {
        const Extent extent(this->AllPoints());
        FitRectangle(extent.low.x, extent.low.y, size->X(), size->Y());
    }

    void FitTo(System::Ref<QG::IBoxD> bounds) override
    {
        System::Ref<QG::ICoordinatesD> lower = bounds->Lower(), upper = bounds->Upper();
        FitRectangle(lower->X(), lower->Y(), upper->X() - lower->X(), upper->Y() - lower->Y());
    }

    void Scale(double factorX, double factorY) override
    {
        const Extent extent(this->AllPoints());
        const double width = extent.Width() * factorX, height = extent.Height() * factorY;
        const double centerX = (double(extent.low.x) + extent.high.x) / 2;
        const double centerY = (double(extent.low.y) + extent.high.y) / 2;
        FitRectangle(centerX - width / 2, centerY - height / 2, width, height);
    }

    float Left() override { return Extent(this->AllPoints()).low.x; }
    void SetLeft(float left) override { this->Offset(double(left) - Left(), 0.0); }
    float Top() override { return Extent(this->AllPoints()).low.y; }
    void SetTop(float top) override { this->Offset(0.0, double(top) - Top()); }
    float Width() override { return float(Extent(this->AllPoints()).Width()); }
    void SetWidth(float width) override
    {
        const Extent extent(this->AllPoints());
        FitRectangle(extent.low.x, extent.low.y, width, extent.Height());
    }
    float Height() override { return float(Extent(this->AllPoints()).Height()); }
    void SetHeight(float height) override
    {
        const Extent extent(this->AllPoints());
        FitRectangle(extent.low.x, extent.low.y, extent.Width(), height);
    }

protected:
    // Maps the current bounding rectangle onto (left, top, width, height).
    // A shape without extent on an axis is placed at the new lower value.
    void FitRectangle(double left, double top, double width, double height)
    {
        const Extent extent(this->AllPoints());
        if (extent.empty)
            return;
        const double scaleX = extent.Width() > 0 ? width / extent.Width() : 0.0;
        const double scaleY = extent.Height() > 0 ? height / extent.Height() : 0.0;
        const PointF low = extent.low;
        this->MapPoints([=](PointF p) {
            return PointF(float(left + (p.x - double(low.x)) * scaleX),
                          float(top + (p.y - double(low.y)) * scaleY));
        });
        this->FireResized();
    }
};

} // namespace Quilon_::Basic::Geometry::TwoD
