#include "Quilon_/Drawing/Point.h"

namespace Quilon_::System {

Any ToAny(const Drawing::Point<int>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Point<float>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Point<double>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
