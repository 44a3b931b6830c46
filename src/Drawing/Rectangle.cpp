#include "Quilon_/Drawing/Rectangle.h"

namespace Quilon_::System {

Any ToAny(const Drawing::Rectangle<int>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Rectangle<float>& value)
{
    return Detail::Box(value);
}

Any ToAny(const Drawing::Rectangle<double>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
