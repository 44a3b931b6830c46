// How Register matches the descriptors of two sets of key points, passed to
// it in an Any:
//
//   ObjectSets::Matching::DescriptorMatchingOptions options;   // 50, all true
//   options.SetPreselectionMatchesCount(20);
//   Functions::Register(model, scene, transform, System::ToAny(options));
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Matching {

class QUILON_API DescriptorMatchingOptions {
public:
    std::int32_t PreselectionMatchesCount() const { return m_preselectionMatchesCount; }
    void SetPreselectionMatchesCount(std::int32_t value) { m_preselectionMatchesCount = value; }
    bool GetAllMatches() const { return m_getAllMatches; }
    void SetGetAllMatches(bool value) { m_getAllMatches = value; }
    bool GetPreselectedMatches() const { return m_getPreselectedMatches; }
    void SetGetPreselectedMatches(bool value) { m_getPreselectedMatches = value; }
    bool FullAffineTransform() const { return m_fullAffineTransform; }
    void SetFullAffineTransform(bool value) { m_fullAffineTransform = value; }

    bool operator==(const DescriptorMatchingOptions&) const = default;

private:
    std::int32_t m_preselectionMatchesCount = 50;
    bool m_getAllMatches = true;
    bool m_getPreselectedMatches = true;
    bool m_fullAffineTransform = true;
};

} // namespace Quilon_::ObjectSets::Matching

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::Matching::DescriptorMatchingOptions& value);
} // namespace Quilon_::System
