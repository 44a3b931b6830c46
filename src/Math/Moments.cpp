#include "Quilon_/Math/Moments.h"

namespace Quilon_::System {

Any ToAny(const Math::Moments& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<Math::Moments>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
