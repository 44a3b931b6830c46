#include "Quilon_/ObjectSets/Matching/DescriptorMatchingOptions.h"

namespace Quilon_::System {

Any ToAny(const ObjectSets::Matching::DescriptorMatchingOptions& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
