// A 2-D shape that carries an angle of its own (rectangles, ellipses,
// texts), in radians, counter-clockwise as seen on the screen.
//
//   text->SetAngle(std::numbers::pi / 2);   // reads upwards
#pragma once

#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IRotatableShape : public virtual IShape {
    QUILON_INTERFACE(IRotatableShape)
public:
    virtual double Angle() = 0;
    // Turns the shape about its centre.
    virtual void SetAngle(double radians) = 0;
};

} // namespace Quilon_::Geometry::TwoD
