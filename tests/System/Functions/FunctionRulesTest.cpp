// The path of an operator call with rules: boxing, the order of the rule
// chains, what rules may change, and how their failures steer the call.
#include "Quilon_/Library.h"
#include "Quilon_/System/Diagnostic/TraceManager.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"

#include "../../Support/Raised.h"
#include "../../Support/RuleDoubles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Quilon_::Tests::FunctionRules {

class IValue : public virtual System::Interface {
    QUILON_INTERFACE(IValue)
public:
    virtual int Value() = 0;
};

QUILON_DEFINE_INTERFACE_TYPE(IValue, L"Quilon_::Tests::FunctionRules::IValue", System::Interface)

class CValue : public System::Template::ObjectImpl<CValue, IValue> {
public:
    explicit CValue(int value) : m_value(value) {}
    int Value() override { return m_value; }

private:
    int m_value;
};

} // namespace Quilon_::Tests::FunctionRules

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
using Functions::Template::Function;
using Quilon_::Tests::FunctionRules::CValue;
using Quilon_::Tests::FunctionRules::IValue;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using Tests::Log;
using Tests::RaisedMessage;
using Tests::Record;
using Tests::Refuse;
using Tests::Rule;
using Tests::RuleFailures;
using Tests::Rules;

// What rules and implementations did, in order.
Log events = std::make_shared<std::vector<std::string>>();

Pointer<IValue, 1> NewValue(int value)
{
    return Pointer<IValue, 1>(new CValue(value));
}

int Plain(int x)
{
    events->push_back("call");
    return x;
}

int Raises(int)
{
    events->push_back("raises");
    QUILON_RAISE(L"Implementation gave up");
}

class FunctionRules : public ::testing::Test {
protected:
    void SetUp() override { events->clear(); }
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(FunctionRules, ChainsRunInOrderAroundTheCallFunctionRulesBeforeOwn)
{
    Function<int (*)(int)> op(L"Ordered");
    op.Register(L"Only", &Plain);
    const std::pair<RuleTypeEnum, std::string> chains[] = {
        {rtCheck, "check"}, {rtMake, "make"}, {rtPreExecute, "pre"}, {rtPostExecute, "post"}};
    for (const auto& [type, name] : chains) {
        op.SetRules(type, Rules({Record(events, "function " + name)}));
        op.Implementations()[0].SetRules(type, Rules({Record(events, "own " + name)}));
    }

    EXPECT_EQ(op(5), 5);
    EXPECT_THAT(*events,
                ElementsAre("function check", "own check", "function make", "own make", "function check",
                            "own check", "function pre", "own pre", "call", "function post", "own post"));
}

TEST_F(FunctionRules, FunctionRefusalLeavesTheImplementationsOwnRulesUnrun)
{
    Function<int (*)(int)> op(L"Refusing");
    op.Register(L"Only", &Plain);
    op.SetRules(rtCheck, Rules({Refuse(0, L"function refuses"), Record(events, "function after refusal")}));
    op.Implementations()[0].SetRules(rtCheck, Rules({Record(events, "own check")}));

    std::vector<Any> arguments{ToAny(1)};
    RuleFailures failures;
    EXPECT_FALSE(op.ApplyRules(rtCheck, op.Implementations()[0], arguments, failures));
    EXPECT_THAT(failures, ElementsAre(std::pair<std::int64_t, std::wstring>(0, L"function refuses")));
    EXPECT_THAT(*events, IsEmpty());
}

int Combine(int x, Pointer<IValue, 1> value)
{
    return x * 1000 + value->Value();
}

TEST_F(FunctionRules, ArgumentsReplacedByMakeAreCheckedAgainAndReachTheImplementation)
{
    Function<int (*)(int, Pointer<IValue, 1>)> op(L"Combine");
    op.Register(L"Only", &Combine);
    auto seen = std::make_shared<std::vector<int>>();
    op.SetRules(rtCheck, Rules({Rule([seen](std::vector<Any>& arguments, RuleFailures&) {
                    EXPECT_EQ(arguments.size(), 2u); // the result is not boxed
                    seen->push_back(arguments[0].CastTo<int>());
                    return true;
                })}));
    op.SetRules(rtMake, Rules({Rule([](std::vector<Any>& arguments, RuleFailures&) {
                    arguments[0] = ToAny(7);
                    arguments[1] = ToAny(NewValue(5));
                    return true;
                })}));

    Pointer<IValue, 1> mine = NewValue(3);
    EXPECT_EQ(op(1, mine), 7005);
    EXPECT_THAT(*seen, ElementsAre(1, 7));
    EXPECT_EQ(mine->Value(), 3);
}

TEST_F(FunctionRules, OperatorWithoutArgumentsPassesAnEmptyVector)
{
    Function<int (*)()> op(+[]() { return 9; });
    auto sizes = std::make_shared<std::vector<std::size_t>>();
    op.SetRules(rtPreExecute, Rules({Rule([sizes](std::vector<Any>& arguments, RuleFailures&) {
                    sizes->push_back(arguments.size());
                    return true;
                })}));
    EXPECT_EQ(op(), 9);
    EXPECT_THAT(*sizes, ElementsAre(0u));
}

void Halve(int x, double& out)
{
    out = x * 0.5;
}

TEST_F(FunctionRules, OutputParameterReachesTheCallerAndThePostRules)
{
    Function<void (*)(int, double&)> op(&Halve);
    auto posted = std::make_shared<std::vector<double>>();
    op.SetRules(rtPostExecute, Rules({Rule([posted](std::vector<Any>& arguments, RuleFailures&) {
                    posted->push_back(arguments[1].CastTo<double>());
                    return true;
                })}));

    double out = 0;
    op(3, out);
    EXPECT_EQ(out, 1.5);
    EXPECT_THAT(*posted, ElementsAre(1.5));
}

TEST_F(FunctionRules, PostRulesRunOnlyAfterASuccessfulImplementation)
{
    Function<int (*)(int)> op(L"Posted");
    op.Register(L"Plain", &Plain);
    op.Register(L"Raises", &Raises);
    op.SetRules(rtPostExecute, Rules({Record(events, "post")}));

    EXPECT_EQ(op(4), 4);
    EXPECT_THAT(*events, ElementsAre("raises", "call", "post"));

    events->clear();
    op.SetNextRunImplementation(0);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"Implementation gave up");
    EXPECT_THAT(*events, ElementsAre("raises"));
}

int Hundred(int)
{
    events->push_back("hundred");
    return 100;
}

TEST_F(FunctionRules, PostRuleFailureDiscardsTheResultAndTriesTheNextImplementation)
{
    Function<int (*)(int)> op(L"Checked");
    op.Register(L"Plain", &Plain);
    op.Register(L"Hundred", &Hundred);
    op.Implementations()[0].SetRules(rtPostExecute, Rules({Refuse(0, L"Result out of range")}));

    EXPECT_EQ(op(4), 4);
    EXPECT_THAT(*events, ElementsAre("hundred", "call"));

    // Alone, its post failure is what the caller gets.
    op.SetNextRunImplementation(0);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"Result out of range");
}

TEST_F(FunctionRules, IgnoringFunctionRulesRunsOnlyOwnRulesOnBoxedArguments)
{
    Function<int (*)(int)> op(L"Ignoring");
    op.Register(L"Plain", &Plain);
    op.Register(L"Own", &Plain, true);
    op.SetRules(rtCheck, Rules({Record(events, "function check"), Refuse(0, L"function refuses")}));
    op.Implementations()[0].SetRules(rtMake, Rules({Rule([](std::vector<Any>& arguments, RuleFailures&) {
                                         arguments[0] = ToAny(arguments[0].CastTo<int>() + 1);
                                         return true;
                                     })}));

    EXPECT_EQ(op(4), 5);
    EXPECT_THAT(*events, ElementsAre("call"));

    // Its fall-back, which honours the function's rules, is refused by them.
    events->clear();
    op.SetNextRunImplementation(1);
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"function refuses");
    EXPECT_THAT(*events, ElementsAre("function check"));
}

TEST_F(FunctionRules, ThrowingRuleFailsItsImplementationAndItsExceptionOutlivesLaterRefusals)
{
    Function<int (*)(int)> op(L"Fragile");
    op.Register(L"Plain", &Plain);
    op.Register(L"Broken", &Plain);
    op.Implementations()[0].SetRules(rtCheck, Rules({Rule([](std::vector<Any>&, RuleFailures&) -> bool {
                                         throw std::runtime_error("rule broke");
                                     })}));
    EXPECT_EQ(op(4), 4);
    EXPECT_THAT(*events, ElementsAre("call"));

    op.Implementations()[1].SetRules(rtCheck, Rules({Refuse(0, L"refused")}));
    EXPECT_EQ(RaisedMessage([&] { op(4); }), L"STL exception: rule broke");
}

int ValueOf(Pointer<IValue, 1> value)
{
    events->push_back("value");
    return value->Value();
}

int ValueRaises(Pointer<IValue, 1> value)
{
    events->push_back("raises");
    QUILON_RAISE(L"Value %1% refused", value->Value());
}

// A by-value reference is handed to each implementation tried, with or
// without rules, and no reference is left behind.
TEST_F(FunctionRules, ByValueReferencesReachEveryImplementationTried)
{
    auto* object = new CValue(3);
    Pointer<IValue, 1> value(object);
    for (bool withRules : {false, true}) {
        events->clear();
        Function<int (*)(Pointer<IValue, 1>)> op(L"Value");
        op.Register(L"Value", &ValueOf);
        op.Register(L"Raises", &ValueRaises);
        if (withRules)
            op.SetRules(rtPreExecute, Rules({Record(events, "pre")}));

        EXPECT_EQ(op(value), 3);
        if (withRules)
            EXPECT_THAT(*events, ElementsAre("pre", "raises", "pre", "value"));
        else
            EXPECT_THAT(*events, ElementsAre("raises", "value"));
        EXPECT_EQ(object->ReferenceCount(), 1);
    }
}

// Collects the debugger output while diagnostics are on; restores both.
class FunctionDiagnostics : public FunctionRules {
protected:
    void SetUp() override
    {
        FunctionRules::SetUp();
        lines.clear();
        m_savedSink = Diagnostic::SetDebugOutputSink(&Capture);
        m_savedEnabled = Functions::Function::DiagnosticEnabled();
    }
    void TearDown() override
    {
        Functions::Function::SetDiagnosticEnabled(m_savedEnabled);
        Diagnostic::SetDebugOutputSink(m_savedSink);
        FunctionRules::TearDown();
    }

    static void Capture(const std::wstring& text) { lines.push_back(text); }
    static inline std::vector<std::wstring> lines;

private:
    Diagnostic::DebugOutputSink m_savedSink = nullptr;
    bool m_savedEnabled = false;
};

TEST_F(FunctionDiagnostics, EachImplementationSkippedByRulesIsWrittenWhileEnabled)
{
    Function<int (*)(int)> op(L"Halve");
    op.Register(L"Slow", &Plain);
    op.Register(L"Fast", &Plain);
    op.Implementations()[0].SetRules(rtPreExecute, Rules({Refuse(0, L"Argument #1 must be even")}));

    EXPECT_EQ(op(3), 3);
    EXPECT_THAT(lines, IsEmpty());

    Functions::Function::SetDiagnosticEnabled(true);
    EXPECT_TRUE(Functions::Function::DiagnosticEnabled());
    EXPECT_EQ(op(3), 3);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_THAT(
        lines[0],
        StartsWith(L"Implementation 'Fast' failed. Reason: 'Argument #1 must be even' (function: Halve - "));
    EXPECT_THAT(lines[0], HasSubstr(L"SkipImplementation"));

    // An implementation that raises is not skipped by rules and not written.
    lines.clear();
    op.Register(L"Raises", &Raises);
    EXPECT_EQ(op(3), 3);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_THAT(lines[0], StartsWith(L"Implementation 'Fast' failed."));
}

} // namespace
