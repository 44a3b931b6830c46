// How the user is editing a 2-D shape on a view, as the shape's handles
// show it.
//
//   shape->SetEditingMode(Geometry::TwoD::emResize);
//   System::ToString(Geometry::TwoD::emFineEdit);   // "emFineEdit"
//   System::ToString(Geometry::TwoD::EditingModeEnum(9));   // "9": other values print as numbers
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry::TwoD {

enum EditingModeEnumTag : std::int32_t {
    emNone = 0,
    emMove = 1,
    emResize = 2,
    emRotate = 3,
    // Point by point: the handles are the shape's own points.
    emFineEdit = 4,
};
using EditingModeEnum = EditingModeEnumTag;

} // namespace Quilon_::Geometry::TwoD

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number, as the
// other geometry enumerations print.
QUILON_API std::wstring ToString(Geometry::TwoD::EditingModeEnum mode);
} // namespace Quilon_::System
