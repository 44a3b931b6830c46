// Rules: small immutable objects that inspect or change the boxed arguments
// of an operator call before or after its implementation runs.
//
//   bool Apply(std::vector<Any>& arguments, RuleFailures& failures) override
//   {
//       if (arguments[0].CastTo<std::int64_t>() < 0) {
//           failures.emplace_back(0, L"Argument #1 must not be negative");
//           return false;
//       }
//       return true;
//   }
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::System::Functions::Rules {

// What rules found wrong: the index of the offending argument (counted from
// 0) and the translated, formatted text.
using RuleFailures = std::vector<std::pair<std::int64_t, std::wstring>>;

class QUILON_API IRule : public virtual Interface {
    QUILON_INTERFACE(IRule)
public:
    // True if the rule is satisfied; otherwise one failure is appended.
    virtual bool Apply(std::vector<Any>& arguments, RuleFailures& failures) = 0;
};

// The rules of one moment of an operator, applied in order.
class QUILON_API IRuleCollection : public virtual Interface {
    QUILON_INTERFACE(IRuleCollection)
public:
    // Applies the rules in order; stops at the first failure unless
    // `continueAfterFailure`. True if all are satisfied.
    virtual bool Apply(std::vector<Any>& arguments, RuleFailures& failures, bool continueAfterFailure) = 0;
};

} // namespace Quilon_::System::Functions::Rules
