#include "Quilon_/Geometry/TwoD/Connectivity.h"

#include "Quilon_/System/EnumText.h"

namespace Quilon_::System {

Any ToAny(Geometry::TwoD::ConnectivityEnum connectivity)
{
    return Detail::Box(connectivity);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(Geometry::TwoD::ConnectivityEnum, Number,
                        {Geometry::TwoD::cn4Connected, L"cn4Connected"},
                        {Geometry::TwoD::cn8Connected, L"cn8Connected"})
