// Rules for tests that are plain functions, for suites that drive the rule
// chains of operators.
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

// A rule that is a plain function.
class FunctionRule : public System::Template::ObjectImpl<FunctionRule, System::Functions::Rules::IRule> {
public:
    explicit FunctionRule(Rule rule) : m_rule(std::move(rule)) {}
    bool Apply(std::vector<Any>& arguments, RuleFailures& failures) override { return m_rule(arguments, failures); }

private:
    Rule m_rule;
};

// The core's own collection, holding the functions in order.
inline System::Pointer<System::Functions::Rules::IRuleCollection, 1> Rules(std::vector<Rule> rules)
{
    auto collection = System::Functions::Rules::RuleCollection::NewInstance();
    for (Rule& rule : rules)
        collection->Add(System::Pointer<System::Functions::Rules::IRule, 1>(new FunctionRule(std::move(rule))));
    return collection;
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
