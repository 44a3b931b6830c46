// Rules: small immutable objects that inspect or change the boxed arguments
// of an operator call before or after its implementation runs, and the
// collections in which operators keep them:
//
//   Pointer<IRuleCollection, 1> checks = RuleCollection::New();
//   checks->Add(CheckItemCount::New(1, 1, -1));
//   function.SetRules(rtCheck, checks);
//
// A rule of one's own:
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
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/Collection.h"

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

// The rules of one moment of an operator, applied in order. Operators may
// share one collection, so it is not to be changed once the initialiser
// that filled it has run.
class QUILON_API IRuleCollection : public Collections::Template::ICollection<IRule>,
                                   public Collections::ICloneable {
    QUILON_INTERFACE(IRuleCollection)
public:
    // Applies the rules in order; stops at the first failure unless
    // `continueAfterFailure`. True if all are satisfied; an empty collection
    // is.
    virtual bool Apply(std::vector<Any>& arguments, RuleFailures& failures, bool continueAfterFailure) = 0;
};

namespace RuleCollection {
// Makes an empty collection; the core's own is the default implementation
// (include Functions/Function.h to call it).
extern QUILON_API Functions::Template::Function<Pointer<IRuleCollection, 1> (*)()> New;
// The same as a plain function, without the operator's dispatch.
QUILON_API Pointer<IRuleCollection, 1> NewInstance();
} // namespace RuleCollection

} // namespace Quilon_::System::Functions::Rules
