// What Register found when matching descriptors: pairs of keys (model,
// scene), all of them and those kept by the preselection, and how many
// pairs agree with the transform:
//
//   ObjectSets::Matching::DescriptorMatchingResults results;
//   results.AllMatches().emplace_back(ObjectSets::Key(1), ObjectSets::Key(7));
//   results.SetMatchedPairCount(1);
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Any.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::ObjectSets::Matching {

class QUILON_API DescriptorMatchingResults {
public:
    using Matches = std::vector<std::pair<Key, Key>>;

    const Matches& AllMatches() const { return m_allMatches; }
    Matches& AllMatches() { return m_allMatches; }
    const Matches& PreselectedMatches() const { return m_preselectedMatches; }
    Matches& PreselectedMatches() { return m_preselectedMatches; }
    std::int32_t MatchedPairCount() const { return m_matchedPairCount; }
    void SetMatchedPairCount(std::int32_t value) { m_matchedPairCount = value; }

    bool operator==(const DescriptorMatchingResults&) const = default;

private:
    Matches m_allMatches;
    Matches m_preselectedMatches;
    std::int32_t m_matchedPairCount = 0;
};

} // namespace Quilon_::ObjectSets::Matching

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::Matching::DescriptorMatchingResults& value);
} // namespace Quilon_::System
