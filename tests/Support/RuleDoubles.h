// A rule collection for tests, whose rules are plain functions, for suites
// that drive the rule chains of operators without the core's collection.
//
//   auto log = std::make_shared<std::vector<std::string>>();
//   op.SetRules(rtCheck, Tests::Rules({Tests::Record(log, "check"), Tests::Refuse(0, L"too small")}));
#pragma once

#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/ObjectImpl.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Quilon_::Tests {

using System::Any;
using System::Functions::Rules::RuleFailures;
using Rule = std::function<bool(std::vector<Any>& arguments, RuleFailures& failures)>;

// Applies its rules in order, stopping at the first failure unless told to
// go on, as the core's collection does.
class RuleList : public System::Template::ObjectImpl<RuleList, System::Functions::Rules::IRuleCollection> {
public:
    explicit RuleList(std::vector<Rule> rules) : m_rules(std::move(rules)) {}
    bool Apply(std::vector<Any>& arguments, RuleFailures& failures, bool continueAfterFailure) override
    {
        bool satisfied = true;
        for (const Rule& rule : m_rules) {
            if (!rule(arguments, failures)) {
                satisfied = false;
                if (!continueAfterFailure)
                    break;
            }
        }
        return satisfied;
    }

private:
    std::vector<Rule> m_rules;
};

inline System::Pointer<System::Functions::Rules::IRuleCollection, 1> Rules(std::vector<Rule> rules)
{
    return System::Pointer<System::Functions::Rules::IRuleCollection, 1>(new RuleList(std::move(rules)));
}

using Log = std::shared_ptr<std::vector<std::string>>;

// Satisfied; notes `label` in `log`.
inline Rule Record(Log log, std::string label)
{
    return [log, label](std::vector<Any>&, RuleFailures&) {
        log->push_back(label);
        return true;
    };
}

// Refuses with (`index`, `text`).
inline Rule Refuse(std::int64_t index, std::wstring text)
{
    return [index, text](std::vector<Any>&, RuleFailures& failures) {
        failures.emplace_back(index, text);
        return false;
    };
}

} // namespace Quilon_::Tests
