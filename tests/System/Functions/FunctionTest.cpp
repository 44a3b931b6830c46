// Dispatch of operator objects: which implementation runs, in which order,
// and what the caller gets when they fail.
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/Raised.h"
#include "../../Support/RuleDoubles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using Functions::rtCheck;
using Functions::Template::Function;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using Tests::Raised;
using Tests::RaisedMessage;
using Tests::Refuse;
using Tests::Rules;

// Implementations are plain functions; they note their calls here.
std::vector<std::string> calls;

int First(int x)
{
    calls.push_back("first");
    return x + 1;
}

int Second(int x)
{
    calls.push_back("second");
    return x + 2;
}

int SecondRaises(int)
{
    calls.push_back("second");
    QUILON_RAISE(L"Second gave up");
}

int FirstRaises(int)
{
    calls.push_back("first");
    QUILON_RAISE(L"First gave up");
}

class FunctionDispatch : public ::testing::Test {
protected:
    void SetUp() override { calls.clear(); }
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }

    // "first" registered before "second": "second" is index 0.
    Function<int (*)(int)> twoOf(int (*first)(int), int (*second)(int))
    {
        Function<int (*)(int)> op(L"Offset");
        op.Register(L"First", first);
        op.Register(L"Second", second);
        return op;
    }
};

TEST_F(FunctionDispatch, TheImplementationRegisteredLastRunsAlone)
{
    auto op = twoOf(&First, &Second);
    ASSERT_EQ(op.Implementations().size(), 2u);
    EXPECT_EQ(op.Implementations()[0].Name().Value(), L"Second");

    EXPECT_EQ(op(10), 12);
    EXPECT_THAT(calls, ElementsAre("second"));
}

TEST_F(FunctionDispatch, ConstructorWithPointerRegistersUnnamedDefaultAndNullRegistersNothing)
{
    Function<int (*)(int)> op(&First);
    op.Register(nullptr);
    ASSERT_EQ(op.Implementations().size(), 1u);
    EXPECT_EQ(op.Implementations()[0].Name().Value(), L"");
    EXPECT_FALSE(op.Implementations()[0].IgnoreFunctionRules());
    EXPECT_EQ(op(1), 2);
}

TEST_F(FunctionDispatch, RaisingImplementationFallsBackAndSuccessHidesTheFailure)
{
    auto op = twoOf(&First, &SecondRaises);
    EXPECT_EQ(op(10), 11);
    EXPECT_THAT(calls, ElementsAre("second", "first"));
}

TEST_F(FunctionDispatch, WhenAllRaiseTheLastExceptionIsThrownAndIsTheThreadsLastError)
{
    auto op = twoOf(&FirstRaises, &SecondRaises);
    Pointer<IException, 0> thrown = Raised([&] { op(0); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->Message(), L"First gave up");
    EXPECT_THAT(calls, ElementsAre("second", "first"));
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == thrown);
}

TEST_F(FunctionDispatch, ForeignExceptionsBecomeExceptionsWithFixedMessages)
{
    Function<int (*)(int)> stl(+[](int) -> int { throw std::runtime_error("disk full"); });
    Pointer<IException, 0> thrown = Raised([&] { stl(0); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->Message(), L"STL exception: disk full");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == thrown);

    Function<int (*)(int)> other(+[](int) -> int { throw 42; });
    EXPECT_EQ(RaisedMessage([&] { other(0); }), L"Unknown exception");

    // Only the failure of the implementation tried last survives.
    other.Register(+[](int) -> int { throw std::logic_error("ignored"); });
    EXPECT_EQ(RaisedMessage([&] { other(0); }), L"Unknown exception");
}

TEST_F(FunctionDispatch, WithoutImplementationTheOperatorIsNamedInTheFailure)
{
    Function<int (*)(int)> op(L"Lonely");
    EXPECT_FALSE(op.CheckImplemented(false));
    Pointer<IException, 0> thrown = Raised([&] { op(1); });
    ASSERT_TRUE(thrown);
    EXPECT_THAT(thrown->Message(), StartsWith(L"No implementation available for function 'Lonely' ("));
    EXPECT_THAT(thrown->Message(), HasSubstr(L"CheckImplemented"));
    EXPECT_EQ(RaisedMessage([&] { op.CheckImplemented(true); }), thrown->Message());
}

TEST_F(FunctionDispatch, WhenAllAreRefusedTheFirstComplaintOfTheLastTriedIsThrown)
{
    auto op = twoOf(&First, &Second);
    // Index 1 is "First", registered first and so tried last. Its collection
    // stops at its first refusal.
    op.Implementations()[1].SetRules(rtCheck,
                                     Rules({Refuse(0, L"First: #1 too small"), Refuse(0, L"never")}));
    op.Implementations()[0].SetRules(rtCheck, Rules({Refuse(0, L"Second: #1 odd")}));

    Pointer<IException, 0> thrown = Raised([&] { op(3); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->Message(), L"First: #1 too small");
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == thrown);
}

TEST_F(FunctionDispatch, AnExceptionKeptFromAnEarlierImplementationWinsOverLaterRefusals)
{
    auto op = twoOf(&First, &SecondRaises);
    // The refusing rule raises and swallows a failure of its own on the way,
    // which the thread's last error must not keep.
    op.Implementations()[1].SetRules(
        rtCheck, Rules({Tests::Rule([](std::vector<Any>& arguments, Tests::RuleFailures& failures) {
            try {
                arguments[0].CastTo<double>();
            } catch (const Pointer<IException, 1>&) {
                failures.emplace_back(0, L"Argument #1 must be a double");
            }
            return false;
        })}));

    Pointer<IException, 0> thrown = Raised([&] { op(3); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->Message(), L"Second gave up");
    EXPECT_THAT(calls, ElementsAre("second"));
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == thrown);
}

class FunctionSelection : public FunctionDispatch {};

TEST_F(FunctionSelection, SelectedIndexRunsOnceAndAlone)
{
    auto op = twoOf(&First, &Second);
    op.SetNextRunImplementation(1);
    EXPECT_EQ(op(10), 11);
    EXPECT_THAT(calls, ElementsAre("first"));
    EXPECT_EQ(op.NextRunImplementation(), -1);

    calls.clear();
    EXPECT_EQ(op(10), 12);
    EXPECT_THAT(calls, ElementsAre("second"));
}

TEST_F(FunctionSelection, SelectedImplementationThatFailsHasNoFallBack)
{
    auto op = twoOf(&First, &SecondRaises);
    op.SetNextRunImplementation(0);
    EXPECT_EQ(RaisedMessage([&] { op(10); }), L"Second gave up");
    EXPECT_THAT(calls, ElementsAre("second"));

    calls.clear();
    EXPECT_EQ(op(10), 11);
    EXPECT_THAT(calls, ElementsAre("second", "first"));
}

TEST_F(FunctionSelection, IndexOutOfRangeRaisesWithoutRunningAndIsConsumed)
{
    auto op = twoOf(&First, &Second);
    op.SetNextRunImplementation(2);
    EXPECT_EQ(RaisedMessage([&] { op(10); }), L"Implementation index is out of range '2'");
    EXPECT_THAT(calls, IsEmpty());

    EXPECT_EQ(op(10), 12);
    EXPECT_THAT(calls, ElementsAre("second"));
}

} // namespace
