// Test doubles of rules and rule collections, for suites that drive the
// rule chains of operators without the core's collection class.
//
//   auto log = std::make_shared<std::vector<std::string>>();
//   op.SetRules(rtCheck, Tests::Rules({Tests::Record(log, "check"), Tests::Refuse(0, L"too small")}));
#pragma once

#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/ObjectImpl.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests {

using System::Any;
using System::Pointer;
using System::Functions::Rules::IRule;
using System::Functions::Rules::IRuleCollection;
using System::Functions::Rules::RuleFailures;

// A rule whose Apply is the given function.
class LambdaRule : public System::Template::ObjectImpl<LambdaRule, IRule> {
public:
    using Body = std::function<bool(std::vector<Any>&, RuleFailures&)>;
    explicit LambdaRule(Body body) : m_body(std::move(body)) {}
    bool Apply(std::vector<Any>& arguments, RuleFailures& failures) override
    {
        return m_body(arguments, failures);
    }

private:
    Body m_body;
};

// Applies its rules in order, stopping at the first failure unless told to
// go on, as the core's collection does.
class RuleList : public System::Template::ObjectImpl<RuleList, IRuleCollection> {
public:
    explicit RuleList(std::vector<Pointer<IRule, 1>> rules) : m_rules(std::move(rules)) {}
    bool Apply(std::vector<Any>& arguments, RuleFailures& failures, bool continueAfterFailure) override
    {
        bool satisfied = true;
        for (const auto& rule : m_rules) {
            if (rule->Apply(arguments, failures))
                continue;
            satisfied = false;
            if (!continueAfterFailure)
                break;
        }
        return satisfied;
    }

private:
    std::vector<Pointer<IRule, 1>> m_rules;
};

inline Pointer<IRuleCollection, 1> Rules(std::initializer_list<Pointer<IRule, 1>> rules)
{
    return Pointer<IRuleCollection, 1>(new RuleList(std::vector<Pointer<IRule, 1>>(rules)));
}

inline Pointer<IRule, 1> Rule(LambdaRule::Body body)
{
    return Pointer<IRule, 1>(new LambdaRule(std::move(body)));
}

using Log = std::shared_ptr<std::vector<std::string>>;

// Satisfied; notes `label` in `log`.
inline Pointer<IRule, 1> Record(Log log, std::string label)
{
    return Rule([log, label](std::vector<Any>&, RuleFailures&) {
        log->push_back(label);
        return true;
    });
}

// Refuses with (`index`, `text`).
inline Pointer<IRule, 1> Refuse(std::int64_t index, std::wstring text)
{
    return Rule([index, text](std::vector<Any>&, RuleFailures& failures) {
        failures.emplace_back(index, text);
        return false;
    });
}

} // namespace Quilon_::Tests
