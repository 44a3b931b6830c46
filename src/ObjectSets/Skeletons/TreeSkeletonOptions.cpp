#include "Quilon_/ObjectSets/Skeletons/TreeSkeletonOptions.h"

namespace Quilon_::System {

Any ToAny(const ObjectSets::Skeletons::TreeSkeletonOptions& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
