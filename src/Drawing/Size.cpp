#include "Quilon_/Drawing/Size.h"

namespace Quilon_::System {

Any ToAny(const Drawing::Size<int>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Size<float>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Size<double>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
