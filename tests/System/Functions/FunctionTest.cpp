// Operator objects: which implementation runs, in which order, the rule
// chains around it, and what the caller gets when they fail.
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Diagnostic/TraceManager.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/KernelDoubles.h"
#include "../../Support/Raised.h"
#include "../../Support/RuleDoubles.h"
#include "../../Support/ScopedTranslator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Quilon_::Tests::FunctionTests {

using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
using Functions::Template::Function;
using Kernel::CThing;
using Kernel::IThing;
using ::testing::ElementsAre;
using ::testing::StartsWith;

// What implementations and rules did, in order.
Log events = std::make_shared<std::vector<std::string>>();

int First(int x)
{
    events->push_back("first");
    return x + 1;
}

int Second(int x)
{
    events->push_back("second");
    return x + 2;
}

int FirstRaises(int)
{
    events->push_back("first raises");
    QUILON_RAISE(L"First gave up");
}

int SecondRaises(int)
{
    events->push_back("second raises");
    QUILON_RAISE(L"Second gave up");
}

class FunctionDispatch : public RaisingTest {
protected:
    void SetUp() override { events->clear(); }

    // "First" registered before "Second": "Second" is index 0 and tried first.
    static Function<int (*)(int)> TwoOf(int (*first)(int), int (*second)(int))
    {
        Function<int (*)(int)> op(L"Offset");
        op.Register(L"First", first);
        op.Register(L"Second", second);
        return op;
    }
};

TEST_F(FunctionDispatch, LastRegisteredRunsAloneAndARaisingOneFallsBack)
{
    auto op = TwoOf(&First, &Second);
    EXPECT_EQ(op.Implementations()[0].Name().Value(), L"Second");
    EXPECT_EQ(op(10), 12);
    EXPECT_THAT(*events, ElementsAre("second"));

    events->clear();
    EXPECT_EQ(TwoOf(&First, &SecondRaises)(10), 11);
    EXPECT_THAT(*events, ElementsAre("second raises", "first"));

    events->clear();
    EXPECT_EQ(RaisedMessage([] { TwoOf(&FirstRaises, &SecondRaises)(0); }), L"First gave up");
    EXPECT_THAT(*events, ElementsAre("second raises", "first raises"));
}

// By-value arguments may be moved into the last implementation only: one
// tried after a failure must still get the caller's object.
std::int64_t HeldBy(Pointer<IThing> thing)
{
    return thing.Get() ? 1 : 0;
}

std::int64_t RaisesWith(Pointer<IThing> thing)
{
    if (thing)
        QUILON_RAISE(L"Refused");
    return 0;
}

TEST_F(FunctionDispatch, ByValueArgumentsReachEveryImplementationTried)
{
    int destructions = 0;
    {
        Pointer<IThing> thing(new CThing(&destructions));
        Function<std::int64_t (*)(Pointer<IThing>)> op(L"Hold");
        op.Register(L"Holds", &HeldBy);
        op.Register(L"Raises", &RaisesWith);
        EXPECT_EQ(op(thing), 1);
        EXPECT_TRUE(thing);
    }
    EXPECT_EQ(destructions, 1);
}

TEST_F(FunctionDispatch, ForeignExceptionsAndMissingImplementationsHaveFixedMessages)
{
    Function<int (*)(int)> op(L"Lonely");
    EXPECT_FALSE(op.CheckImplemented(false));
    EXPECT_THAT(RaisedMessage([&] { op(1); }), StartsWith(L"No implementation available for function 'Lonely' ("));

    op.Register(+[](int) -> int { throw std::logic_error("tried last"); });
    op.Register(+[](int) -> int { throw 42; });
    EXPECT_EQ(RaisedMessage([&] { op(0); }), L"STL exception: tried last");
    op.SetNextRunImplementation(0);
    EXPECT_EQ(RaisedMessage([&] { op(0); }), L"Unknown exception");
}

TEST_F(FunctionDispatch, RefusalsGiveTheFirstComplaintOfTheLastTriedUnlessAnExceptionWasKept)
{
    auto op = TwoOf(&First, &Second);
    op.Implementations()[1].SetRules(rtCheck, Rules({Refuse(0, L"First: #1 too small"), Refuse(0, L"never")}));
    op.Implementations()[0].SetRules(rtCheck, Rules({Refuse(0, L"Second: #1 odd")}));
    EXPECT_EQ(RaisedMessage([&] { op(3); }), L"First: #1 too small");
    EXPECT_TRUE(events->empty());

    // An exception kept from an earlier implementation wins over refusals.
    auto raising = TwoOf(&First, &SecondRaises);
    raising.Implementations()[1].SetRules(rtCheck, Rules({Refuse(0, L"Argument #1 must be a double")}));
    Pointer<IException, 0> thrown = Raised([&] { raising(3); });
    EXPECT_EQ(thrown->Message(), L"Second gave up");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == thrown);
}

TEST_F(FunctionDispatch, SelectedIndexRunsOnceAndAloneWithoutFallBack)
{
    auto op = TwoOf(&First, &SecondRaises);
    op.SetNextRunImplementation(1);
    EXPECT_EQ(op(10), 11);
    EXPECT_EQ(op.NextRunImplementation(), -1);
    op.SetNextRunImplementation(0);
    EXPECT_EQ(RaisedMessage([&] { op(10); }), L"Second gave up");
    EXPECT_THAT(*events, ElementsAre("first", "second raises"));

    op.SetNextRunImplementation(2);
    EXPECT_EQ(RaisedMessage([&] { op(10); }), L"Implementation index is out of range '2'");
    EXPECT_EQ(op(10), 11) << "the index is consumed";
    EXPECT_THAT(*events, ElementsAre("first", "second raises", "second raises", "first"));
}

using FunctionRulesTest = FunctionDispatch;

TEST_F(FunctionRulesTest, ChainsRunInOrderAroundTheCallFunctionRulesBeforeOwn)
{
    Function<int (*)(int)> op(L"Ordered");
    op.Register(L"Only", &First);
    const std::pair<RuleTypeEnum, std::string> chains[] = {
        {rtCheck, "check"}, {rtMake, "make"}, {rtPreExecute, "pre"}, {rtPostExecute, "post"}};
    for (const auto& [type, name] : chains) {
        op.SetRules(type, Rules({Record(events, "function " + name)}));
        op.Implementations()[0].SetRules(type, Rules({Record(events, "own " + name)}));
    }
    EXPECT_EQ(op(5), 6);
    EXPECT_THAT(*events, ElementsAre("function check", "own check", "function make", "own make", "function check",
                                     "own check", "function pre", "own pre", "first", "function post", "own post"));
}

std::vector<std::wstring> debugLines;

TEST_F(FunctionRulesTest, PostRulesRunAfterSuccessOnlyAndRefusalsMoveOnAndAreWrittenWhenDiagnosing)
{
    Function<int (*)(int)> op(L"Posted");
    op.Register(L"First", &First);
    op.Register(L"Second", &Second);
    op.Register(L"Raises", &FirstRaises); // raising is no refusal: not written
    op.Register(L"Fast", &Second);
    op.SetRules(rtPostExecute, Rules({Record(events, "post")}));
    op.Implementations()[0].SetRules(rtPreExecute, Rules({Refuse(0, L"Argument #1 must be even")}));
    op.Implementations()[2].SetRules(rtPostExecute, Rules({Refuse(0, L"Result out of range")}));

    debugLines.clear();
    Diagnostic::DebugOutputSink savedSink =
        Diagnostic::SetDebugOutputSink(+[](const std::wstring& text) { debugLines.push_back(text); });
    EXPECT_EQ(op(3), 4);
    EXPECT_THAT(*events, ElementsAre("first raises", "second", "post", "first", "post"));
    EXPECT_TRUE(debugLines.empty());
    Functions::Function::SetDiagnosticEnabled(true);
    EXPECT_EQ(op(3), 4);
    Functions::Function::SetDiagnosticEnabled(false);
    Diagnostic::SetDebugOutputSink(savedSink);
    ASSERT_EQ(debugLines.size(), 1u);
    EXPECT_THAT(debugLines[0],
                StartsWith(L"Implementation 'Fast' failed. Reason: 'Argument #1 must be even' (function: Posted - "));

    // Alone, a post failure is what the caller gets, raised like any
    // message: translated.
    op.SetNextRunImplementation(2);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"Result out of range");
    ScopedTranslator german(L"Result out of range", L"Ergebnis außerhalb des Bereichs");
    op.SetNextRunImplementation(2);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"Ergebnis außerhalb des Bereichs");
}

TEST_F(FunctionRulesTest, IgnoringFunctionRulesRunsOnlyOwnRules)
{
    Function<int (*)(int)> op(L"Ignoring");
    op.Register(L"First", &First);
    op.Register(L"Own", &First, true);
    op.SetRules(rtCheck, Rules({Record(events, "function check"), Refuse(0, L"function refuses")}));
    op.Implementations()[0].SetRules(rtMake, Rules({Record(events, "own make")}));
    EXPECT_EQ(op(4), 5);
    EXPECT_THAT(*events, ElementsAre("own make", "first"));

    // Its fall-back, which honours the function's rules, is refused by them.
    events->clear();
    op.SetNextRunImplementation(1);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"function refuses");
    EXPECT_THAT(*events, ElementsAre("function check"));
}

void Fill(Pointer<IThing> source, const std::wstring& label, std::int64_t& count, Pointer<IThing, 0>& copy)
{
    events->push_back(ToAnsi(label));
    count = source->Value();
    copy = source;
}

TEST_F(FunctionRulesTest, RulesSeeBoxedArgumentsAndOnlyOutputsReachTheCallerAgain)
{
    Function<void (*)(Pointer<IThing>, const std::wstring&, std::int64_t&, Pointer<IThing, 0>&)> op(&Fill);
    Pointer<IThing> callers(new CThing(nullptr, 5)), made(new CThing(nullptr, 9));
    op.SetRules(rtCheck, Rules({[](std::vector<Any>& arguments, RuleFailures&) {
                    events->push_back("check " + ToAnsi(arguments[1].CastTo<std::wstring>()));
                    return true;
                }}));
    op.SetRules(rtMake, Rules({[made](std::vector<Any>& arguments, RuleFailures&) {
                    arguments[0] = ToAny(made);
                    arguments[1] = ToAny(L"made");
                    return true;
                }}));
    std::int64_t countAfter = 0;
    op.SetRules(rtPostExecute, Rules({[&](std::vector<Any>& arguments, RuleFailures&) {
                    countAfter = arguments[2].CastTo<std::int64_t>();
                    return true;
                }}));

    const std::wstring label = L"caller's";
    std::int64_t count = 0;
    Pointer<IThing, 0> copy;
    op(callers, label, count, copy);
    EXPECT_THAT(*events, ElementsAre("check caller's", "check made", "made")) << "what Make replaced is checked again";
    EXPECT_EQ(count, 9);
    EXPECT_EQ(countAfter, 9);
    EXPECT_TRUE(copy == made);
    EXPECT_EQ(label, L"caller's");

    // A replacement that no longer reads as the parameter's type fails the
    // implementation, before it runs and without post rules.
    events->clear();
    op.SetRules(rtMake, Rules({[](std::vector<Any>& arguments, RuleFailures&) {
                    arguments[2] = ToAny(1.5);
                    return true;
                }}));
    EXPECT_EQ(RaisedMessage([&] { op(callers, label, count, copy); }), L"Cannot cast from 'double' to '__int64'");
    EXPECT_THAT(*events, ElementsAre("check caller's", "check caller's"));
}

} // namespace Quilon_::Tests::FunctionTests
