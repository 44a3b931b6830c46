// The rules of the object kernel, applied to boxed arguments directly, and
// how tools present rules.
#include "Quilon_/System/Functions/Rules/ArgumentIndexes.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"
#include "Quilon_/System/Functions/Rules/DisableEvents.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include "../../Support/KernelDoubles.h"
#include "../../Support/Raised.h"
#include "../../Support/RuleChainDoubles.h"
#include "../../Support/RuleDoubles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::System::Functions::Rules;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::StartsWith;
using Tests::CSwitch;
using Tests::Kernel::CThing;
using Tests::Kernel::IThing;

using KernelRules = Tests::RaisingTest;
using Object = Pointer<Interface, 0>;
using Silenceable = Pointer<IDisableEvents, 1>;
using MaybeThing = Pointer<IThing, 0>;

TEST_F(KernelRules, CheckInterfaceSupportedNamesTheArgumentFromOneAndRefusesNull)
{
    Pointer<IRule, 1> rule = CheckInterfaceSupported::New(1, IDisableEvents::GetType());
    std::vector<Any> arguments = {ToAny(0), ToAny(Pointer<IDisableEvents>(new CSwitch))};
    RuleFailures failures;
    EXPECT_TRUE(rule->Apply(arguments, failures));
    EXPECT_TRUE(failures.empty());

    const std::wstring message = L"Argument #2 must implement struct 'Quilon_::System::IDisableEvents'";
    arguments[1] = ToAny(Pointer<IThing>(new CThing));
    EXPECT_FALSE(rule->Apply(arguments, failures));
    arguments[1] = ToAny(Pointer<IThing, 0>());
    EXPECT_FALSE(rule->Apply(arguments, failures));
    EXPECT_THAT(failures, ElementsAre(std::pair<std::int64_t, std::wstring>(1, message),
                                      std::pair<std::int64_t, std::wstring>(1, message)));
}

TEST_F(KernelRules, DisableEventsWrapsOnlyWhatCanBeSilencedAndRestoresWhenTheArgumentsGo)
{
    auto* loudObject = new CSwitch;
    Pointer<IDisableEvents> loud(loudObject), silent(new CSwitch(true));
    Pointer<IThing> plain(new CThing);
    {
        std::vector<Any> arguments = {ToAny(loud), ToAny(plain), ToAny(silent), ToAny(7)};
        RuleFailures failures;
        EXPECT_TRUE(DisableEvents::New({0, 1, 2})->Apply(arguments, failures));
        EXPECT_TRUE(failures.empty());
        EXPECT_TRUE(loud->EventsDisabled());
        EXPECT_TRUE(arguments[1].CastTo<Object>() == plain) << "nothing to silence: left alone";

        // The wrapper stands for the object under every cast the object has,
        // and under no other.
        auto wrapper = arguments[0].CastTo<Object>();
        EXPECT_FALSE(wrapper == Object(loud));
        EXPECT_TRUE(arguments[0].CastTo<Silenceable>() == loud);
        EXPECT_FALSE(arguments[0].CastTo<MaybeThing>());
        EXPECT_THAT(
            Tests::RaisedMessage([&] { Pointer<IThing> thing(wrapper); }),
            StartsWith(
                L"Pointer <Quilon_::Tests::Kernel::IThing> : Interface not supported by instance of "));

        // A second rule of the same call keeps the wrapper it finds: a new one
        // would switch the events back on when it replaced the old.
        EXPECT_TRUE(DisableEvents::New(0)->Apply(arguments, failures));
        EXPECT_TRUE(arguments[0].CastTo<Object>() == wrapper);
        EXPECT_TRUE(loud->EventsDisabled());
    }
    EXPECT_FALSE(loud->EventsDisabled());
    EXPECT_TRUE(silent->EventsDisabled()) << "put back as found";
    EXPECT_EQ(loudObject->sets, 2);
}

TEST_F(KernelRules, RulesOfSeveralArgumentsNeedAtLeastTwoIndexes)
{
    EXPECT_EQ(AtLeastTwoIndexes({3, 0}), (std::vector<std::int64_t>{3, 0}));
    EXPECT_EQ(Tests::RaisedMessage([] { AtLeastTwoIndexes({1}); }),
              L"At least two argument indexes expected (1 provided)");
}

class CSilentRule : public System::Template::ObjectImpl<CSilentRule, IRule> {
public:
    bool Apply(std::vector<Any>&, RuleFailures&) override { return true; }
};

TEST_F(KernelRules, RulesArePresentedByClassAndArgumentsInTheOrderOfEvaluation)
{
    Pointer<IRuleCollection> chain = Tests::Chain({
        CheckInterfaceSupported::New(0, IDisableEvents::GetType()),
        DisableEvents::New({0, 2}),
        DisableEvents::New(1),
    });
    EXPECT_THAT(PresentRules(chain),
                ElementsAre(L"CCheckInterfaceSupported(0, Quilon_::System::IDisableEvents)",
                            L"CDisableEvents({0, 2})", L"CDisableEvents({1})"));
    EXPECT_TRUE(PresentRules(nullptr).empty());
    EXPECT_TRUE(PresentRules(Tests::Rules({})).empty());

    EXPECT_THAT(Present(Pointer<IRule>(new CSilentRule)), EndsWith(L"CSilentRule(?)"));
}

} // namespace
