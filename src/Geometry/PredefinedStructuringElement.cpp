#include "Quilon_/Geometry/PredefinedStructuringElement.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Geometry::PredefinedStructuringElementEnum, Number,
                        {Geometry::pseSquare, L"pseSquare"}, {Geometry::pseDiamond, L"pseDiamond"},
                        {Geometry::pseDisk, L"pseDisk"}, {Geometry::pseHorizontalLine, L"pseHorizontalLine"},
                        {Geometry::pseVerticalLine, L"pseVerticalLine"}, {Geometry::pseLine45, L"pseLine45"},
                        {Geometry::pseLine135, L"pseLine135"}, {Geometry::pseCube, L"pseCube"},
                        {Geometry::pseOctahedron, L"pseOctahedron"}, {Geometry::pseBall, L"pseBall"})

Quilon_::System::Any Quilon_::System::ToAny(Geometry::PredefinedStructuringElementEnum value)
{
    return Detail::Box(value);
}
