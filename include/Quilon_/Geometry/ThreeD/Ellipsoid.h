// A 3-D ellipsoid: three half axes, turned by an orientation matrix.
//
//   e->SetRadiusZ(e->RadiusX());
//   e->IsSphere();
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IEllipsoidF : public virtual IBoxedF {
    QUILON_INTERFACE(IEllipsoidF)
public:
    virtual float RadiusX() = 0;
    virtual void SetRadiusX(float radius) = 0;
    virtual float RadiusY() = 0;
    virtual void SetRadiusY(float radius) = 0;
    virtual float RadiusZ() = 0;
    virtual void SetRadiusZ(float radius) = 0;
    // The 3 x 3 rotation from the ellipsoid's own axes to x, y, z.
    virtual System::Ref<Math::IMatrixD> Orientation() = 0;
    virtual void SetOrientation(System::Ref<Math::IMatrixD> rotation) = 0;
    // Whether the three radii are equal within the approximator's tolerance.
    virtual bool IsSphere() = 0;
    virtual double SurfaceArea() = 0;
    // The surface point at polar angle `theta` from the own z axis and
    // azimuth `phi` from the own x axis.
    virtual System::Ref<ICoordinatesF> SurfacePoint(double theta, double phi) = 0;
    // The outward unit normal there.
    virtual System::Ref<ICoordinatesF> SurfaceNormal(double theta, double phi) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
