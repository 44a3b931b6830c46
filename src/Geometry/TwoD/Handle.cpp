#include "Quilon_/Geometry/TwoD/Handle.h"

namespace Quilon_::System {

Any ToAny(const Geometry::TwoD::Handle& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
