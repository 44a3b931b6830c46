#include "Quilon_/ObjectSets/Matching/DescriptorMatchingResults.h"

namespace Quilon_::System {

Any ToAny(const ObjectSets::Matching::DescriptorMatchingResults& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
