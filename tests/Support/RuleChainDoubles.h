// Doubles for suites and test plug-ins that fill the rule chains of
// operators with real rule objects, as the initialisers of a library do:
// a collection that applies and lists its rules, and an object whose
// events can be switched off.
//
//   op.SetRules(rtMake, Tests::Chain({DisableEvents::New(0)}));
//   Pointer<Tests::CSwitch> output(new Tests::CSwitch);
#pragma once

#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

#include <atomic>
#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Tests {

// Applies its rules in order of insertion, stopping at the first failure
// unless told to go on; lists them for tools.
class RuleChain : public System::Template::ObjectImpl<RuleChain, System::Functions::Rules::IRuleCollection,
                                                      System::Functions::Rules::IRuleListing> {
public:
    using Rule = System::Pointer<System::Functions::Rules::IRule, 1>;

    explicit RuleChain(std::vector<Rule> rules) : m_rules(std::move(rules)) {}

    bool Apply(std::vector<System::Any>& arguments, System::Functions::Rules::RuleFailures& failures,
               bool continueAfterFailure) override
    {
        bool satisfied = true;
        for (const Rule& rule : m_rules) {
            if (!rule->Apply(arguments, failures)) {
                satisfied = false;
                if (!continueAfterFailure)
                    break;
            }
        }
        return satisfied;
    }
    std::int64_t Count() override { return static_cast<std::int64_t>(m_rules.size()); }
    Rule Item(std::int64_t index) override { return m_rules.at(static_cast<std::size_t>(index)); }

private:
    const std::vector<Rule> m_rules;
};

inline System::Pointer<System::Functions::Rules::IRuleCollection, 1> Chain(std::vector<RuleChain::Rule> rules)
{
    return System::Pointer<System::Functions::Rules::IRuleCollection, 1>(new RuleChain(std::move(rules)));
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
