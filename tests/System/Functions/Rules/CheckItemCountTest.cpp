// The item-count rule over every kind of argument it reads, and the rule
// collection that applies rules in order.
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/CheckItemCount.h"

#include "../../../Support/RuleDoubles.h"

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
}

TEST(CheckItemCountTest, OtherValuesAreUnsupported)
{
    Pointer<IRule, 1> rule = CheckItemCount::New(1, 0, 5);
    const RuleFailures unsupported{{1, L"Argument #2 is of an unsupported vector type"}};
    EXPECT_EQ(Failures(rule, ToAny(std::int64_t(3))), unsupported);
    EXPECT_EQ(Failures(rule, ToAny(std::vector<int>{1})), unsupported);
    EXPECT_EQ(Failures(rule, ToAny(Pointer<Interface, 0>())), unsupported);
    EXPECT_EQ(Failures(rule, ToAny(Pointer<Interface, 1>(CheckItemCount::New(0, 0, 0)))), unsupported);
}

TEST(RuleCollectionTest, AppliesInOrderAndStopsAtTheFirstFailureUnlessToldToGoOn)
{
    auto log = std::make_shared<std::vector<std::string>>();
    Pointer<IRuleCollection, 1> rules =
        Tests::Rules({Record(log, "first"), Refuse(0, L"second"), Record(log, "third"), Refuse(1, L"fourth")});
    std::vector<Any> arguments;
    RuleFailures failures;
    EXPECT_FALSE(rules->Apply(arguments, failures, false));
    EXPECT_EQ(failures, (RuleFailures{{0, L"second"}}));
    EXPECT_EQ(*log, std::vector<std::string>{"first"});

    failures.clear();
    EXPECT_FALSE(rules->Apply(arguments, failures, true));
    EXPECT_EQ(failures, (RuleFailures{{0, L"second"}, {1, L"fourth"}}));
    EXPECT_TRUE(RuleCollection::NewInstance()->Apply(arguments, failures, false));

    // A clone holds the same rules and is another collection.
    Pointer<IRuleCollection, 1> clone(rules->Clone());
    EXPECT_FALSE(clone == rules);
    ASSERT_EQ(clone->Count(), 4);
    EXPECT_EQ(clone->Item(3), rules->Item(3));
}

} // namespace Quilon_::Tests::RuleTests
