#include "Quilon_/Drawing/Color.h"

namespace Quilon_::System {

Any ToAny(const Drawing::Color& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
