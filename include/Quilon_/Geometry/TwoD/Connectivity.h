// Which pixels count as neighbours when a 2-D shape is rasterised: a line
// drawn 4-connected steps only along the axes, 8-connected also diagonally.
//
//   Geometry::TwoD::LineF::SetDefaultConnectivity(Geometry::TwoD::cn4Connected);
//   System::Any a = System::ToAny(Geometry::TwoD::cn8Connected);   // held as int64 8
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry::TwoD {

// The value is the number of neighbours of a pixel.
enum ConnectivityEnumTag : std::int32_t {
    cn4Connected = 4,
    cn8Connected = 8,
};
using ConnectivityEnum = ConnectivityEnumTag;

} // namespace Quilon_::Geometry::TwoD

namespace Quilon_::System {
QUILON_API Any ToAny(Geometry::TwoD::ConnectivityEnum connectivity);
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::TwoD::ConnectivityEnum connectivity);
} // namespace Quilon_::System
