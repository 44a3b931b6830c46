// The arguments of the events by which a shape says that it moved or was
// resized, and the factories that make them. The core makes these args
// itself:
//
//   if (Moved())
//       Moved().Fire(Geometry::MoveEventArgs::New(offset));   // offset: Ref<ICoordinatesD>
//
//   void OnResized(Interface*, Ref<Geometry::IResizeEventArgs> args)
//   {
//       Ref<Geometry::IBoxD> bounds = args->Bounds();   // the new bounds
//   }
#pragma once

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Geometry {

// A shape moved by Offset(), in the shape's own axes.
class QUILON_API IMoveEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IMoveEventArgs)
public:
    virtual System::Ref<ICoordinatesD> Offset() = 0;
};

// A shape's extent changed; Bounds() is the bounding box after the change.
class QUILON_API IResizeEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IResizeEventArgs)
public:
    virtual System::Ref<IBoxD> Bounds() = 0;
};

namespace MoveEventArgs {
// Made by the core; a library may register its own.
class QUILON_API Factory
    : public System::Functions::Template::Factory<System::Ref<IMoveEventArgs>(System::Ref<ICoordinatesD>)> {
public:
    Factory();
};
extern QUILON_API Factory New;
} // namespace MoveEventArgs

namespace ResizeEventArgs {
// Made by the core; a library may register its own.
class QUILON_API Factory
    : public System::Functions::Template::Factory<System::Ref<IResizeEventArgs>(System::Ref<IBoxD>)> {
public:
    Factory();
};
extern QUILON_API Factory New;
} // namespace ResizeEventArgs

} // namespace Quilon_::Geometry
