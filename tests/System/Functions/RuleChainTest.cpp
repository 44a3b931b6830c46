// Chains built once and shared by the operators of a family: deep clones,
// assignment to overload sets and single overloads, their presentation, and
// the life cycle that fills them at start and lets their rules go at stop.
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/Overloads.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

#include "../../Support/InChildProcess.h"

#include <gtest/gtest.h>

#include <atomic>

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
using namespace Quilon_::System::Functions::Rules;

// A rule that counts the instances alive, so that a test sees them go.
class CCountedRule : public System::Template::ObjectImpl<CCountedRule, IRule, IRulePresentation> {
public:
    explicit CCountedRule(std::int64_t tag) : tag(tag) { ++alive; }
    ~CCountedRule() override { --alive; }

    bool Apply(std::vector<Any>&, RuleFailures&) override { return true; }
    std::wstring ClassName() override { return L"CCounted"; }
    std::vector<std::wstring> Arguments() override { return Rules::Detail::Texts(tag); }

    static inline std::atomic<int> alive{0};

private:
    const std::int64_t tag;
};

RuleChain::Rule Counted(std::int64_t tag)
{
    return RuleChain::Rule(new CCountedRule(tag));
}

using PairSet = Functions::Template::Overloads<void(std::int64_t), void(std::int64_t, std::int64_t)>;

TEST(RuleChain, CloneCopiesEachCollectionAndSettingReplacesOnlyItsSlot)
{
    RuleChain base;
    base.Make({Counted(1)}).PreExecute({Counted(2), Counted(3)});
    RuleChain derived = base.Clone().Check({Counted(4)});

    for (std::size_t slot : {1u, 2u}) {
        ASSERT_TRUE(derived.Collections()[slot]);
        EXPECT_NE(derived.Collections()[slot].Get(), base.Collections()[slot].Get()) << slot;
        EXPECT_EQ(PresentRules(derived.Collections()[slot]), PresentRules(base.Collections()[slot]));
    }
    EXPECT_FALSE(base.Collections()[rtCheck]) << "the clone's Check reached the original";
    EXPECT_FALSE(base.Collections()[rtPostExecute]);
    EXPECT_EQ(RuleChain::Present(derived.Collections()),
              L"Check: CCounted(4); Make: CCounted(1); PreExecute: CCounted(2), CCounted(3)");

    // An empty list clears the moment.
    derived.PreExecute({});
    EXPECT_FALSE(derived.Collections()[rtPreExecute]);
    EXPECT_TRUE(base.Collections()[rtPreExecute]);
    EXPECT_EQ(RuleChain::Present(RuleChain().Collections()), L"");
}

TEST(RuleChain, AssignsEveryOverloadOrOneAndSharesTheCollections)
{
    PairSet pair(L"Pair");
    Functions::Template::Function<void (*)(std::int64_t)> single(L"Single");
    RuleChain chain;
    chain.Check({Counted(7)});
    RuleChain other = chain.Clone().Make({Counted(8)});

    chain.AssignTo(pair, single);
    EXPECT_EQ(pair.Overload<0>().Rules(rtCheck).Get(), chain.Collections()[rtCheck].Get());
    EXPECT_EQ(pair.Overload<1>().Rules(rtCheck).Get(), chain.Collections()[rtCheck].Get());
    EXPECT_EQ(single.Rules(rtCheck).Get(), chain.Collections()[rtCheck].Get());

    other.AssignTo(pair.Overload<1>());
    EXPECT_EQ(RuleChain::Present(pair.Overload<0>().AllRules()), L"Check: CCounted(7)");
    EXPECT_EQ(RuleChain::Present(pair.Overload<1>().AllRules()), L"Check: CCounted(7); Make: CCounted(8)");
    RuleChain::ReleaseAssigned();
    EXPECT_EQ(RuleChain::Present(pair.Overload<1>().AllRules()), L"");
}

PairSet* startedPair = nullptr;

void FillPair()
{
    RuleChain().Check({Counted(1)}).PreExecute({Counted(2)}).AssignTo(*startedPair);
}

TEST(RuleChain, StartFillsTheChainsAndStopReleasesTheirRules)
{
    Tests::InChildProcess([] {
        PairSet pair(L"Pair");
        startedPair = &pair;
        const Functions::Template::ChainsInitializer<Quilon_::Library> chains(&FillPair);
        EXPECT_EQ(CCountedRule::alive, 0);
        // The core alone: the chains are its own business.
        Library::SetLibraries({});

        Library::Initialize();
        EXPECT_EQ(RuleChain::Present(pair.Overload<1>().AllRules()),
                  L"Check: CCounted(1); PreExecute: CCounted(2)");
        EXPECT_EQ(CCountedRule::alive, 2) << "overloads share one set of rule objects";

        Library::Finalize();
        EXPECT_FALSE(pair.Overload<0>().Rules(rtCheck));
        EXPECT_EQ(CCountedRule::alive, 0) << "rules released after the shut-down state are never destroyed";

        // A second start fills them again.
        Library::Initialize();
        EXPECT_EQ(CCountedRule::alive, 2);
        Library::Finalize();
        EXPECT_EQ(CCountedRule::alive, 0);
    });
}

} // namespace
