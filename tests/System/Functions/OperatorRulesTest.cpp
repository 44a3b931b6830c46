// Operators of a real plug-in running under chains of the kernel's rules,
// filled as a library's initialisers fill them: what the implementations
// receive, what the caller gets when rules refuse, and that silenced
// arguments are heard again after every way a call can end.
#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"
#include "Quilon_/System/Functions/Rules/DisableEvents.h"

#include "../../Support/Raised.h"
#include "../../Support/RuleChainDoubles.h"
#include "../../Support/RuleDoubles.h"
#include "../../Support/RulesPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <thread>

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
using namespace Quilon_::System::Functions::Rules;
using ::testing::ElementsAre;
using Tests::Chain;
using Tests::CSwitch;
using Tests::RaisedMessage;
using Tests::RulesPlugin::ProbeOperator;

Pointer<IDisableEvents> Switch(bool disabled = false)
{
    return Pointer<IDisableEvents>(new CSwitch(disabled));
}

Pointer<IRule> Implements(std::int64_t index, const Type& type)
{
    return CheckInterfaceSupported::New(index, type);
}

const Type& events = IDisableEvents::GetType();

// The suite loads the rules plug-in, which starts the toolkit; the program
// shuts it down after its last test, as a program that starts it must, so
// that what the start-up made (the core's operator chains among it) is
// released before the leak check at exit.
class ShutDownAfterTheLastTest : public ::testing::Environment {
public:
    void TearDown() override { Library::Finalize(); }
};
const auto* const shutDown = ::testing::AddGlobalTestEnvironment(new ShutDownAfterTheLastTest);

class OperatorRules : public Tests::RaisingTest {
protected:
    static void SetUpTestSuite()
    {
        static void* const plugin = [] {
            Library::LoadLibraryW(ToString(Tests::RulesPlugin::Library));
            return dlopen(Tests::RulesPlugin::Library, RTLD_NOW | RTLD_NOLOAD);
        }();
        ASSERT_NE(plugin, nullptr);
        auto find = [](const char* name) -> ProbeOperator& {
            return reinterpret_cast<Tests::RulesPlugin::Accessor>(dlsym(plugin, name))();
        };
        probe = &find(Tests::RulesPlugin::ProbeAccessor);
        echo = &find(Tests::RulesPlugin::EchoAccessor);
        listed = &find(Tests::RulesPlugin::ListedAccessor);
        listedToo = &find(Tests::RulesPlugin::ListedTooAccessor);
    }

    void TearDown() override
    {
        for (ProbeOperator* op : {probe, echo}) {
            op->SetRules(RuleCollections{});
            for (auto& implementation : op->Implementations())
                implementation.SetRules(RuleCollections{});
        }
        Tests::RaisingTest::TearDown();
    }

    static ProbeOperator::Implementation& Own(ProbeOperator& op, const wchar_t* name)
    {
        for (auto& implementation : op.Implementations()) {
            if (implementation.Name().Value() == name)
                return implementation;
        }
        throw std::logic_error("no such implementation");
    }

    static inline ProbeOperator* probe = nullptr;
    static inline ProbeOperator* echo = nullptr;
    static inline ProbeOperator* listed = nullptr;
    static inline ProbeOperator* listedToo = nullptr;
};

TEST_F(OperatorRules, TheCallerGetsTheFirstComplaintOfTheImplementationTriedLast)
{
    probe->SetRules(rtCheck, Chain({Implements(0, events)}));
    Own(*probe, L"Eager").SetRules(rtPreExecute, Chain({Implements(1, IRuleCollection::GetType())}));
    Own(*probe, L"Careful")
        .SetRules(rtCheck, Chain({Implements(1, IRule::GetType()), Implements(0, events)}));

    auto* target = new CSwitch;
    Pointer<IDisableEvents> held(target);
    EXPECT_EQ(RaisedMessage([&] { (*probe)(held, Switch(), 0); }),
              L"Argument #2 must implement struct 'Quilon_::System::Functions::Rules::IRule'");
    EXPECT_EQ(target->sets, 0);

    // A rule object is an IRule: Careful's own checks pass, and it runs.
    EXPECT_EQ((*probe)(held, Implements(0, events), 0), L"Careful: loud/none");
}

TEST_F(OperatorRules, SilencedArgumentsAreHeardAgainAfterSuccessFailureAndNesting)
{
    // Silenced at Make and again before the call: the second rule keeps the
    // first one's wrapper, so nothing switches back on before the end.
    probe->SetRules(rtMake, Chain({DisableEvents::New({0, 1})}));
    probe->SetRules(rtPreExecute, Chain({DisableEvents::New(0)}));
    auto seenByPost = std::make_shared<std::vector<bool>>();
    probe->SetRules(rtPostExecute, Tests::Rules({[seenByPost](std::vector<Any>& arguments, RuleFailures&) {
                        seenByPost->push_back(
                            arguments[0].CastTo<Pointer<IDisableEvents>>()->EventsDisabled());
                        return true;
                    }}));
    Pointer<IDisableEvents> target = Switch(), source = Switch(), off = Switch(true);

    EXPECT_EQ((*probe)(target, source, 0), L"Eager: silent/silent");
    EXPECT_FALSE(target->EventsDisabled());
    EXPECT_FALSE(source->EventsDisabled());

    EXPECT_EQ((*probe)(target, source, 2),
              L"Eager: silent/silent; Eager: silent/silent; Eager: silent/silent");
    EXPECT_FALSE(target->EventsDisabled());
    EXPECT_THAT(*seenByPost, ElementsAre(true, true, true, true)) << "post rules run before the arguments go";

    EXPECT_EQ(RaisedMessage([&] { (*probe)(target, source, -1); }), L"Probe refused at depth -1");
    EXPECT_FALSE(target->EventsDisabled());
    EXPECT_FALSE(source->EventsDisabled());

    EXPECT_EQ((*probe)(off, nullptr, 1), L"Eager: silent/none; Eager: silent/none");
    EXPECT_TRUE(off->EventsDisabled()) << "left as it was found";
}

bool eventsOffInTheCall = false;

void Touch(Pointer<IDisableEvents>& target)
{
    eventsOffInTheCall = target->EventsDisabled();
}

// An output reference that the implementation leaves in place stays
// silenced, and wrapped, until the post rules have run.
TEST_F(OperatorRules, AnOutputReferenceStaysSilencedThroughThePostRules)
{
    Functions::Template::Function<void (*)(Pointer<IDisableEvents>&)> touch(&Touch);
    touch.SetRules(rtMake, Chain({DisableEvents::New(0)}));
    auto seenByPost = std::make_shared<std::vector<bool>>();
    touch.SetRules(rtPostExecute, Tests::Rules({[seenByPost](std::vector<Any>& arguments, RuleFailures&) {
                       seenByPost->push_back(
                           arguments[0].CastTo<Pointer<IDisableEvents>>()->EventsDisabled());
                       return true;
                   }}));
    Pointer<IDisableEvents> target = Switch();
    touch(target);
    EXPECT_TRUE(eventsOffInTheCall);
    EXPECT_THAT(*seenByPost, ElementsAre(true));
    EXPECT_FALSE(target->EventsDisabled());
}

TEST_F(OperatorRules, IgnoringFunctionRulesStillRunsTheImplementationsOwn)
{
    echo->SetRules(rtCheck, Chain({Implements(1, events)}));
    Own(*echo, L"Lenient").SetRules(rtMake, Chain({DisableEvents::New(0)}));
    EXPECT_EQ((*echo)(Switch(), nullptr, 0), L"Lenient: silent/none");
    echo->SetNextRunImplementation(1);
    EXPECT_EQ(RaisedMessage([&] { (*echo)(Switch(), nullptr, 0); }),
              L"Argument #2 must implement struct 'Quilon_::System::IDisableEvents'");
}

TEST_F(OperatorRules, APostRuleThatRefusesMovesOnAndItsTextIsWhatRemains)
{
    auto runs = std::make_shared<std::vector<std::string>>();
    probe->SetRules(rtPostExecute, Tests::Rules({Tests::Record(runs, "post")}));
    Own(*probe, L"Eager").SetRules(rtPostExecute, Chain({Implements(1, events)}));
    EXPECT_EQ((*probe)(Switch(), nullptr, 0), L"Careful: loud/none");
    EXPECT_THAT(*runs, ElementsAre("post", "post"));

    Own(*probe, L"Careful").SetRules(rtPostExecute, Chain({Implements(1, IRule::GetType())}));
    EXPECT_EQ(RaisedMessage([&] { (*probe)(Switch(), nullptr, 0); }),
              L"Argument #2 must implement struct 'Quilon_::System::Functions::Rules::IRule'");
}

TEST_F(OperatorRules, SiblingsFilledFromOneVectorShareTheirCollectionsAcrossCallsAndThreads)
{
    for (RuleTypeEnum type : {rtCheck, rtMake, rtPreExecute, rtPostExecute})
        EXPECT_TRUE(listed->Rules(type) == listedToo->Rules(type));
    EXPECT_TRUE(listed->Rules(rtMake));

    // Refused before the call, after Make had silenced the target.
    Pointer<IDisableEvents> target = Switch();
    EXPECT_EQ(RaisedMessage([&] { (*listedToo)(target, nullptr, 0); }),
              L"Argument #2 must implement struct 'Quilon_::System::IDisableEvents'");
    EXPECT_FALSE(target->EventsDisabled());

    auto calls = [&](ProbeOperator& op) {
        Pointer<IDisableEvents> own = Switch(), source = Switch();
        for (int i = 0; i < 200; ++i)
            EXPECT_EQ(op(own, source, 0), L"Echo: silent/silent");
        EXPECT_FALSE(own->EventsDisabled());
    };
    std::thread other([&] { calls(*listed); });
    calls(*listedToo);
    other.join();
}

} // namespace
