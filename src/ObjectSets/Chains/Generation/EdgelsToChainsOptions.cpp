#include "Quilon_/ObjectSets/Chains/Generation/EdgelsToChainsOptions.h"

namespace Quilon_::ObjectSets::Chains::Generation {

bool EdgelsToChainsOptions::operator==(const EdgelsToChainsOptions& other) const
{
    return m_memberEdgelsAttributeName.Value() == other.m_memberEdgelsAttributeName.Value() &&
           m_linkLengthWeight == other.m_linkLengthWeight &&
           m_edgelToLinkAngleWeight == other.m_edgelToLinkAngleWeight &&
           m_edgelToEdgelAngleWeight == other.m_edgelToEdgelAngleWeight;
}

} // namespace Quilon_::ObjectSets::Chains::Generation

namespace Quilon_::System {

Any ToAny(const ObjectSets::Chains::Generation::EdgelsToChainsOptions& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
