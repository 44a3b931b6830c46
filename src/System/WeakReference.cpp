#include "Quilon_/System/WeakReference.h"

namespace Quilon_::System {

Any ToAny(const WeakReference<Interface>& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<WeakReference<Interface>>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
