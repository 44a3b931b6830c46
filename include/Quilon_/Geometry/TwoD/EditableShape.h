// A 2-D shape that the user edits in steps that can be committed or taken
// back as one.
//
//   shape->BeginEdit();
//   ... drag handles ...
//   shape->EndEdit(false);   // back to the shape as it was at BeginEdit
#pragma once

#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IEditableShape : public virtual IShape {
    QUILON_INTERFACE(IEditableShape)
public:
    virtual void BeginEdit() = 0;
    // Keeps the changes since BeginEdit with `commit`, else restores.
    virtual void EndEdit(bool commit) = 0;
    virtual bool IsEditing() = 0;
};

} // namespace Quilon_::Geometry::TwoD
