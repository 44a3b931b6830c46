// What is drawn on: a window's device, a bitmap, a printer page. The
// handle is the platform's own (on this platform whatever the rendering
// library chose to box in the Any), and the core only passes it on.
//
//   Ref<Windows::IGraphicSurface> surface = Windows::GraphicSurface::New(System::ToAny(handle));
//   Drawing::Size<int> extent = surface->Extent();
#pragma once

#include "Quilon_/Drawing/Size.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Windows {

class QUILON_API IGraphicSurface : public virtual System::Interface {
    QUILON_INTERFACE(IGraphicSurface)
public:
    // The platform handle the surface was made from.
    virtual System::Any Handle() = 0;
    // The drawable extent in device pixels.
    virtual Drawing::Size<int> Extent() = 0;
};

namespace GraphicSurface {
using Factory = System::Functions::Template::Factory<System::Ref<IGraphicSurface>(const System::Any&)>;
extern QUILON_API Factory New;
} // namespace GraphicSurface

} // namespace Quilon_::Windows
