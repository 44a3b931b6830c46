// A 2-D ellipse, placed by its bounding rectangle and turned by the angle
// of a rotatable shape when it has one.
//
//   Ref<Geometry::TwoD::IEllipseF> e = Geometry::TwoD::EllipseF::New(0, 0, 20, 10, Geometry::Axes::aXY);
//   e->RadiusX();   // 10
#pragma once

#include "Quilon_/Geometry/TwoD/BoxedF.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IEllipseF : public virtual IBoxedF {
    QUILON_INTERFACE(IEllipseF)
public:
    // The half axes; setting one keeps the centre.
    virtual float RadiusX() = 0;
    virtual void SetRadiusX(float radius) = 0;
    virtual float RadiusY() = 0;
    virtual void SetRadiusY(float radius) = 0;
};

namespace EllipseF {
// New(axes) is empty; New(left, top, width, height, axes).
using Factory =
    System::Functions::Template::Factory<System::Ref<IEllipseF>(Geometry::Axes),
                                         System::Ref<IEllipseF>(float, float, float, float, Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace EllipseF

} // namespace Quilon_::Geometry::TwoD
