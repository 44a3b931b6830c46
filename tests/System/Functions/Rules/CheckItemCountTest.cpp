// The item-count rule over every kind of argument it reads.
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/CheckItemCount.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::RuleTests {

using namespace Quilon_::System;
using namespace Quilon_::System::Functions::Rules;

// The failures of applying `rule` to a call whose argument 1 is `value`.
RuleFailures Failures(const Pointer<IRule, 1>& rule, Any value)
{
    std::vector<Any> arguments{ToAny(0), std::move(value)};
    RuleFailures failures;
    bool satisfied = rule->Apply(arguments, failures);
    EXPECT_EQ(satisfied, failures.empty());
    return failures;
}

TEST(CheckItemCountTest, LimitsApplyToEveryKindAndNegativeLimitsAreNone)
{
    Pointer<IRule, 1> exactlyTwo = CheckItemCount::New(1, 2, 2);
    const RuleFailures tooFew{{1, L"Argument #2 must contain at least '2' elements"}};
    const RuleFailures tooMany{{1, L"Argument #2 must contain less than or exactly '2' elements"}};

    EXPECT_EQ(Failures(exactlyTwo, ToAny(std::vector<std::wstring>{})), tooFew);
    EXPECT_EQ(Failures(exactlyTwo, ToAny(std::vector<std::int64_t>{1, 2, 3})), tooMany);
    EXPECT_TRUE(Failures(exactlyTwo, ToAny(std::vector<double>{1, 2})).empty());
    EXPECT_EQ(Failures(exactlyTwo, ToAny(std::vector<float>{1})), tooFew);

    Pointer<IRuleCollection, 1> collection = RuleCollection::New();
    collection->Add(exactlyTwo);
    EXPECT_EQ(Failures(exactlyTwo, ToAny(collection)), tooFew);

    Pointer<IRule, 1> notEmpty = CheckItemCount::New(1, 1, -1);
    EXPECT_TRUE(Failures(notEmpty, ToAny(std::vector<double>(1000))).empty());
    EXPECT_TRUE(Failures(CheckItemCount::New(1, -1, -1), ToAny(std::vector<float>{})).empty());

    // Vectors of other elements, numbers and objects that are no collection.
    const RuleFailures unsupported{{1, L"Argument #2 is of an unsupported vector type"}};
    EXPECT_EQ(Failures(notEmpty, ToAny(std::int64_t(3))), unsupported);
    EXPECT_EQ(Failures(notEmpty, ToAny(std::vector<int>{1})), unsupported);
    EXPECT_EQ(Failures(notEmpty, ToAny(Pointer<Interface, 1>(notEmpty))), unsupported);
}

} // namespace Quilon_::Tests::RuleTests
