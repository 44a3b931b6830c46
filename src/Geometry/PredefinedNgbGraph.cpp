#include "Quilon_/Geometry/PredefinedNgbGraph.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Geometry::PredefinedNgbGraphEnum, Number, {Geometry::pngSquare4, L"pngSquare4"},
                        {Geometry::pngSquare8, L"pngSquare8"}, {Geometry::pngHexagonal6, L"pngHexagonal6"},
                        {Geometry::pngCubic6, L"pngCubic6"}, {Geometry::pngCubic26, L"pngCubic26"})

Quilon_::System::Any Quilon_::System::ToAny(Geometry::PredefinedNgbGraphEnum value)
{
    return Detail::Box(value);
}
