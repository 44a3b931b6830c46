// A 2-D circle: an ellipse whose two radii stay equal.
//
//   Ref<Geometry::TwoD::ICircleF> c = Geometry::TwoD::CircleF::New(5, 5, 2, Geometry::Axes::aXY);
//   c->SetThroughPoints({0, 0}, {2, 0}, {0, 2});   // the circle through three points
#pragma once

#include "Quilon_/Drawing/Point.h"
#include "Quilon_/Geometry/TwoD/Ellipse.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API ICircleF : public virtual IEllipseF {
    QUILON_INTERFACE(ICircleF)
public:
    virtual float Radius() = 0;
    virtual void SetRadius(float radius) = 0;
    virtual float CenterX() = 0;
    virtual void SetCenterX(float x) = 0;
    virtual float CenterY() = 0;
    virtual void SetCenterY(float y) = 0;
    virtual float Diameter() = 0;
    // The circle through three points; raises for collinear points.
    virtual void SetThroughPoints(const Drawing::Point<float>& a, const Drawing::Point<float>& b,
                                  const Drawing::Point<float>& c) = 0;
};

namespace CircleF {
// New(axes) is empty; New(centerX, centerY, radius, axes).
using Factory =
    System::Functions::Template::Factory<System::Ref<ICircleF>(Geometry::Axes),
                                         System::Ref<ICircleF>(float, float, float, Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace CircleF

} // namespace Quilon_::Geometry::TwoD
