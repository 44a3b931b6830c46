// Doubles for suites and test plug-ins that fill the rule chains of
// operators with real rule objects, as the initialisers of a library do:
// a chain made from a list of rules, and an object whose events can be
// switched off.
//
//   op.SetRules(rtMake, Tests::Chain({DisableEvents::New(0)}));
//   Pointer<Tests::CSwitch> output(new Tests::CSwitch);
#pragma once

#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

#include <atomic>
#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Tests {

// The core's own collection, holding `rules` in order, as a chain makes
// the collection of one moment; an empty one for no rules.
inline System::Pointer<System::Functions::Rules::IRuleCollection, 1>
Chain(System::Functions::RuleChain::RuleList rules)
{
    if (rules.size() == 0)
        return System::Functions::Rules::RuleCollection::NewInstance();
    return System::Pointer<System::Functions::Rules::IRuleCollection, 1>(
        System::Functions::RuleChain().Check(rules).Collections()[System::Functions::rtCheck]);
}

// An object whose events can be switched off, standing for a collection;
// counts how often the switch was set.
class CSwitch : public System::Template::ObjectImpl<CSwitch, System::IDisableEvents> {
public:
    explicit CSwitch(bool disabled = false) : m_disabled(disabled) {}

    bool EventsDisabled() override { return m_disabled; }
    void SetEventsDisabled(bool disabled) override
    {
        m_disabled = disabled;
        ++sets;
    }

    std::atomic<int> sets{0};

private:
    std::atomic<bool> m_disabled;
};

} // namespace Quilon_::Tests
