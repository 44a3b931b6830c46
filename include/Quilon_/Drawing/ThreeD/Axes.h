// The axes drawn around a 3-D scene: on which edges they fly as the scene
// turns, and where their ticks point. The concrete axes come with a 3-D
// viewer library.
//
//   Ref<Drawing::ThreeD::IAxes> axes = Drawing::ThreeD::Axes::New();
//   axes->SetFlyMode(Drawing::ThreeD::fmClosestTriad);
//   axes->SetTickLocation(Drawing::ThreeD::tlOutside);
#pragma once

#include "Quilon_/Drawing/ThreeD/DrawingMode.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing::ThreeD {

class QUILON_API IAxes : public virtual System::Interface {
    QUILON_INTERFACE(IAxes)
public:
    virtual bool Visible() = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual FlyModeEnum FlyMode() = 0;
    virtual void SetFlyMode(FlyModeEnum mode) = 0;
    virtual TickLocationEnum TickLocation() = 0;
    virtual void SetTickLocation(TickLocationEnum location) = 0;
};

namespace Axes {
using Factory = System::Functions::Template::Factory<System::Ref<IAxes>()>;
extern QUILON_API Factory New;
} // namespace Axes

} // namespace Quilon_::Drawing::ThreeD
