// Producers of shapes: a detector, a drawing tool or a file that hands out
// shapes and tells its listeners when they change.
//
//   source->ShapesChanged() += NewEventHandler(view, &CView::OnShapes);
//   // the source fires, for one new shape:
//   ShapesChanged().Fire(Geometry::ShapeSourceEventArgs::New(Geometry::sseAdded, shape));
#pragma once

#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {

// What happened to the shapes of a source.
enum ShapeSourceEventTypeEnumTag : std::int32_t {
    sseAdded = 0,    // Shape() is new
    sseRemoved = 1,  // Shape() is gone
    sseModified = 2, // Shape() changed; InnerEventArgs() may say how
    sseCleared = 3,  // every shape is gone
    sseReset = 4,    // the whole list was replaced: read Shapes() again
};
using ShapeSourceEventTypeEnum = ShapeSourceEventTypeEnumTag;

class QUILON_API IShapeSourceEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IShapeSourceEventArgs)
public:
    virtual ShapeSourceEventTypeEnum EventType() = 0;
    // The shape concerned; null for the events of the whole list.
    virtual System::Pointer<IShapeND, 0> Shape() = 0;
    // The args of the shape's own event that caused this one, if any.
    virtual System::Pointer<System::IEventArgs, 0> InnerEventArgs() = 0;
};

using ShapeSourceEvent = System::Event<System::Ref<IShapeSourceEventArgs>>;

class QUILON_API IShapeSource : public virtual System::Interface {
    QUILON_INTERFACE(IShapeSource)
public:
    virtual std::wstring Name() = 0;
    // The shapes produced so far.
    virtual System::Ref<IShapeCollection> Shapes() = 0;
    // A disabled source keeps its shapes and produces no new ones.
    virtual bool Enabled() = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual ShapeSourceEvent& ShapesChanged() = 0;
};

class QUILON_API IShapeSourceCollection
    : public virtual System::Collections::Template::ICollection<IShapeSource> {
    QUILON_INTERFACE(IShapeSourceCollection)
};

namespace ShapeSourceEventArgs {
using Made = System::Ref<IShapeSourceEventArgs>;
// The three overloads, each made by the core unless a library registers its
// own. A Pointer converts to either reference type, so the second argument
// must be a Ref<IShapeND> or a Ref<IEventArgs> exactly.
class QUILON_API Factory
    : public System::Functions::Template::Factory<
          Made(ShapeSourceEventTypeEnum), Made(ShapeSourceEventTypeEnum, System::Ref<IShapeND>),
          Made(ShapeSourceEventTypeEnum, System::Ref<System::IEventArgs>)> {
public:
    Factory();
};
extern QUILON_API Factory New;
} // namespace ShapeSourceEventArgs

namespace ShapeSourceCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IShapeSourceCollection>()>;
extern QUILON_API Factory New;
} // namespace ShapeSourceCollection

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; empty for any other value.
QUILON_API std::wstring ToString(Geometry::ShapeSourceEventTypeEnum type);
} // namespace Quilon_::System
