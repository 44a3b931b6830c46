// The handles of a shape as a view shows them: a list of handle values
// that is itself viewable, with one selected handle at most.
//
//   Ref<Geometry::TwoD::IHandleCollection> handles = generator->Generate(shape);
//   std::int64_t grabbed = handles->HitTest(mouse, 3.0f);   // -1 if none
#pragma once

#include "Quilon_/Geometry/TwoD/Handle.h"
#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/Windows/Viewable.h"

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueCollection<Geometry::TwoD::Handle>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Geometry::TwoD {

class QUILON_API IHandleCollection : public virtual System::Collections::Template::IValueCollection<Handle>,
                                     public virtual Windows::IViewable {
    QUILON_INTERFACE(IHandleCollection)
public:
    // The position of the handle drawn within `tolerance` of `point`, or -1.
    virtual std::int64_t HitTest(const Drawing::Point<float>& point, float tolerance) = 0;
    // -1 when none is selected.
    virtual std::int64_t SelectedIndex() = 0;
    virtual void SetSelectedIndex(std::int64_t index) = 0;
    // The side of the square drawn for each handle, in screen pixels.
    virtual float HandleSize() = 0;
    virtual void SetHandleSize(float size) = 0;
    // Moves one handle, not the shape: the generator applies it.
    virtual void MoveHandle(std::int64_t index, const Drawing::Point<float>& position) = 0;
};

namespace HandleCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IHandleCollection>()>;
extern QUILON_API Factory New;
} // namespace HandleCollection

} // namespace Quilon_::Geometry::TwoD
