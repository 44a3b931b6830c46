// The weights with which EdgelsToChains links edgels into chains, and the
// attribute in which it lists each chain's edgels:
//
//   ObjectSets::Chains::Generation::EdgelsToChainsOptions options;
//   options.SetMemberEdgelsAttributeName(System::LIString(L"Edgels"));
//   options.SetLinkLengthWeight(1.0);
//
// Every weight is 0 and the name empty until set.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/String.h"

namespace Quilon_::ObjectSets::Chains::Generation {

class QUILON_API EdgelsToChainsOptions {
public:
    const System::LIString& MemberEdgelsAttributeName() const { return m_memberEdgelsAttributeName; }
    void SetMemberEdgelsAttributeName(const System::LIString& value) { m_memberEdgelsAttributeName = value; }
    double LinkLengthWeight() const { return m_linkLengthWeight; }
    void SetLinkLengthWeight(double value) { m_linkLengthWeight = value; }
    double EdgelToLinkAngleWeight() const { return m_edgelToLinkAngleWeight; }
    void SetEdgelToLinkAngleWeight(double value) { m_edgelToLinkAngleWeight = value; }
    double EdgelToEdgelAngleWeight() const { return m_edgelToEdgelAngleWeight; }
    void SetEdgelToEdgelAngleWeight(double value) { m_edgelToEdgelAngleWeight = value; }

    // The name as text (whatever its translation), then the three weights
    // exactly.
    bool operator==(const EdgelsToChainsOptions& other) const;

private:
    System::LIString m_memberEdgelsAttributeName;
    double m_linkLengthWeight = 0;
    double m_edgelToLinkAngleWeight = 0;
    double m_edgelToEdgelAngleWeight = 0;
};

} // namespace Quilon_::ObjectSets::Chains::Generation

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::Chains::Generation::EdgelsToChainsOptions& value);
} // namespace Quilon_::System
