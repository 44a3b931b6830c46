#include "Quilon_/Geometry/TwoD/EditingMode.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Geometry::TwoD::EditingModeEnum, Number, {Geometry::TwoD::emNone, L"emNone"},
                        {Geometry::TwoD::emMove, L"emMove"}, {Geometry::TwoD::emResize, L"emResize"},
                        {Geometry::TwoD::emRotate, L"emRotate"}, {Geometry::TwoD::emFineEdit, L"emFineEdit"})
