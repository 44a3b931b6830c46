// A surface together with the transform from world coordinates to it and
// the graphic context to draw in: what drawing code needs to put a shape in
// image coordinates on a window. A world context is made for one pass of
// drawing and does not change.
//
//   Ref<Drawing::IWorldContext> world = Drawing::WorldContext::New(surface, Drawing::Transform::Scaling(2,
//   2)); Drawing::Point<double> onScreen = world->WorldTransform().Apply(pixel);
#pragma once

#include "Quilon_/Drawing/Transform.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Windows {
class IGraphicSurface;
} // namespace Quilon_::Windows

namespace Quilon_::Drawing {

class IGraphicContext;

class QUILON_API IWorldContext : public virtual System::Interface {
    QUILON_INTERFACE(IWorldContext)
public:
    virtual System::Ref<Windows::IGraphicSurface> Surface() = 0;
    // World to device.
    virtual Transform WorldTransform() = 0;
    // The context given at creation; else the calling thread's
    // GraphicContext::CurrentContext() at creation, which may be null.
    virtual System::Pointer<IGraphicContext, 0> GraphicContext() = 0;
};

namespace WorldContext {
// New(surface, transform) draws in the calling thread's current context;
// New(surface, transform, context) in `context`.
using Factory = System::Functions::Template::Factory<
    System::Ref<IWorldContext>(System::Ref<Windows::IGraphicSurface>, const Transform&),
    System::Ref<IWorldContext>(System::Ref<Windows::IGraphicSurface>, const Transform&,
                               System::Ref<IGraphicContext>)>;
extern QUILON_API Factory New;
} // namespace WorldContext

} // namespace Quilon_::Drawing
