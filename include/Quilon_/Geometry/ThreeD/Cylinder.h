// A 3-D circular cylinder between the centres of its base and top discs.
//
//   c->SetRadius(2);
//   c->LateralArea();   // 2 pi r times the axis length
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API ICylinderF : public virtual IBoxedF {
    QUILON_INTERFACE(ICylinderF)
public:
    virtual System::Ref<ICoordinatesF> BaseCenter() = 0;
    virtual void SetBaseCenter(System::Ref<ICoordinatesF> center) = 0;
    virtual System::Ref<ICoordinatesF> TopCenter() = 0;
    virtual void SetTopCenter(System::Ref<ICoordinatesF> center) = 0;
    virtual float Radius() = 0;
    virtual void SetRadius(float radius) = 0;
    // The unit vector from the base centre to the top centre.
    virtual System::Ref<ICoordinatesF> AxisDirection() = 0;
    virtual double AxisLength() = 0;
    // An uncapped cylinder is a tube: its discs are not part of it.
    virtual bool Capped() = 0;
    virtual void SetCapped(bool capped) = 0;
    virtual double LateralArea() = 0;
    virtual double BaseArea() = 0;
    virtual double DistanceToAxis(System::Ref<ICoordinatesF> point) = 0;
    // The point of the lateral surface at `angle` radians around the axis
    // and `height` along it from the base.
    virtual System::Ref<ICoordinatesF> SurfacePoint(double angle, double height) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
