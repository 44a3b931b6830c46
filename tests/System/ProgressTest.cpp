// Progress contexts: the current context held weakly, children that pass
// their share on to the parent, the per-thread interval, and cancellation
// that reaches the work at its next report. The concrete context comes from
// the reference library, started in a child process.
#include "Quilon_/System/ProgressContext.h"

#include "../Support/BasicLibrary.h"
#include "../Support/EventDoubles.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::Progress {

using namespace Quilon_::System;
using Template::ObjectImpl;
using Context = Pointer<IProgressContext, 1>;
using Share = ProgressContext::Share;
using ChangedArgs = Pointer<IPropertyChangedEventArgs, 1>;
using MaybeContext = Pointer<IProgressContext, 0>;

using ProgressWithoutLibrary = RaisingTest;

// The args that an application's library would make for the change.
class CChangedArgs : public ObjectImpl<CChangedArgs, IPropertyChangedEventArgs> {
public:
    CChangedArgs(std::wstring name, Any oldValue) : m_name(std::move(name)), m_old(std::move(oldValue)) {}
    std::wstring PropertyName() override { return m_name; }
    std::int64_t Index() override { return -1; }
    Any OldValue() override { return m_old; }
    Any NewValue() override { return Any(); }
    bool HasNewValue() override { return false; }
    Pointer<IEventArgs, 0> InnerEventArgs() override { return nullptr; }
    Pointer<Interface, 0> Source() override { return nullptr; }
    void ReleaseValues() override { m_old = Any(); }

private:
    std::wstring m_name;
    Any m_old;
};

ChangedArgs NewChangedArgs(const std::wstring& name, const Any& oldValue)
{
    return ChangedArgs(new CChangedArgs(name, oldValue));
}

TEST_F(ProgressWithoutLibrary, NobodyListensAndNothingIsMade)
{
    EXPECT_FALSE(ProgressContext::CurrentProgressContext());
    EXPECT_FALSE(ProgressContext::CreateChild(Share(1, 2)));
    EXPECT_FALSE(ProgressContext::NewInstanceFunction1IsImplemented());
    EXPECT_EQ(RaisedMessage([] { ProgressContext::NewInstance(1, false); }),
              L"Function has no implementation");
    EXPECT_EQ(RaisedMessage([] { ProgressContext::New(Share(1)); }), L"Function has no implementation");
}

TEST(ProgressInterval, IsFiveHundredUntilSetAndBelongsToTheThreadThatSetIt)
{
    EXPECT_EQ(ProgressContext::DefaultInterval(), 500u);
    ProgressContext::SetDefaultInterval(20);
    unsigned int seenByOther = 0;
    std::thread([&] { seenByOther = ProgressContext::DefaultInterval(); }).join();
    EXPECT_EQ(seenByOther, 500u);
    EXPECT_EQ(ProgressContext::DefaultInterval(), 20u);
    ProgressContext::ClearDefaultInterval();
    EXPECT_EQ(ProgressContext::DefaultInterval(), 500u);
}

TEST(ProgressContexts, TheCurrentContextIsHeldWeaklyAndEachChangeFiresOnce)
{
    InChildProcess([] {
        StartBasic();
        PropertyChangedEventArgs::New.byValue.Register(&NewChangedArgs);
        auto* recorder = new Events::CArgsRecorder<ChangedArgs>;
        Events::Thing held(recorder);
        ProgressContext::PropertyChanged += recorder->Handler();

        Context root = ProgressContext::New(Share(1));
        ProgressContext::SetCurrentProgressContext(root);
        ProgressContext::SetCurrentProgressContext(root);
        EXPECT_EQ(ProgressContext::CurrentProgressContext().Get(), root.Get());
        ASSERT_EQ(recorder->received.size(), 1u);
        EXPECT_EQ(recorder->received[0]->PropertyName(), L"CurrentProgressContext");
        EXPECT_FALSE(recorder->received[0]->OldValue().CastTo<MaybeContext>());

        Context second = ProgressContext::New(Share(1));
        ProgressContext::SetCurrentProgressContext(second);
        ASSERT_EQ(recorder->received.size(), 2u);
        EXPECT_EQ(recorder->received[1]->OldValue().CastTo<MaybeContext>().Get(), root.Get());

        recorder->received.clear();
        second = root; // the application lets its context go
        EXPECT_FALSE(ProgressContext::CurrentProgressContext());
        EXPECT_FALSE(ProgressContext::CreateChild(Share(1, 2)));
        ProgressContext::SetCurrentProgressContext(nullptr); // held already: a dead one reads null
        EXPECT_TRUE(recorder->received.empty());
        ProgressContext::PropertyChanged -= recorder->Handler();
    });
}

TEST(ProgressContexts, ChildrenPassTheirShareOnAtMostOncePerInterval)
{
    InChildProcess([] {
        StartBasic();
        ProgressContext::SetDefaultInterval(0);
        Context root = ProgressContext::New(Share(1));
        ProgressContext::SetCurrentProgressContext(root);
        MaybeContext quarter = ProgressContext::CreateChild(Share(1, 4));
        ASSERT_TRUE(quarter);
        EXPECT_EQ(quarter->Parent().Get(), root.Get());
        quarter->SetValue(0.5);
        EXPECT_DOUBLE_EQ(root->Value(), 0.125);
        Context half = ProgressContext::New(Context(quarter), Share(1, 2));
        half->SetValue(1.0);
        EXPECT_DOUBLE_EQ(quarter->Value(), 1.0);
        EXPECT_DOUBLE_EQ(root->Value(), 0.25);
        quarter->SetValue(2.0); // clamped: nothing more to pass on
        EXPECT_DOUBLE_EQ(root->Value(), 0.25);

        // A long interval holds reports back until the context completes.
        ProgressContext::SetDefaultInterval(60000);
        Context slow = ProgressContext::New(root, Share(1, 2));
        slow->SetValue(0.5);
        EXPECT_DOUBLE_EQ(root->Value(), 0.25);
        slow->SetValue(1.0);
        EXPECT_DOUBLE_EQ(root->Value(), 0.75);
    });
}

TEST(ProgressContexts, AReleasedChildPassesOnWhatItHeldAndWithTheFlagItsWholeShare)
{
    InChildProcess([] {
        StartBasic();
        ProgressContext::SetDefaultInterval(60000);
        Context root = ProgressContext::New(Share(1));
        ProgressContext::SetCurrentProgressContext(root);
        MaybeContext plain = ProgressContext::CreateChild(Share(1, 2));
        plain->SetValue(0.5);
        EXPECT_DOUBLE_EQ(root->Value(), 0.0);
        plain = nullptr;
        EXPECT_DOUBLE_EQ(root->Value(), 0.25);
        MaybeContext completing = ProgressContext::CreateChild(Share(1, 2), true);
        completing->SetValue(0.1);
        completing = nullptr;
        EXPECT_DOUBLE_EQ(root->Value(), 0.75);
    });
}

TEST(ProgressContexts, CancellationRaisesAtTheNextReportAnywhereBelow)
{
    InChildProcess([] {
        StartBasic();
        ProgressContext::SetDefaultInterval(0);
        Context root = ProgressContext::New(Share(1));
        Context child = ProgressContext::New(root, Share(1, 2), true);
        Context grandchild = ProgressContext::New(child, Share(1, 2));
        grandchild->SetValue(0.5);
        root->Cancel();
        EXPECT_TRUE(grandchild->IsCancelled());
        EXPECT_FALSE(Context(ProgressContext::New(Share(1)))->IsCancelled());
        Pointer<IException, 0> raised = Raised([&] { grandchild->SetValue(0.75); });
        ASSERT_TRUE(raised);
        EXPECT_TRUE((Pointer<ICancelException, 0>(raised)));
        EXPECT_EQ(raised->Message(), L"The operation was cancelled");
        EXPECT_DOUBLE_EQ(root->Value(), 0.125);
        // Released during unwinding, a completing child must not raise again.
        grandchild = root;
        child = root;
        EXPECT_DOUBLE_EQ(root->Value(), 0.125);
    });
}

} // namespace Quilon_::Tests::Progress
