// Order, removal and life cycle of events and their handlers.
#include "Quilon_/System/Event.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/EventDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace Quilon_::Tests::EventTests {

using namespace Events;
using System::EventArgs::Empty;
using System::Interface;
using System::Pointer;

class EventTest : public RaisingTest {
protected:
    Thing NewListener(const std::string& name) { return Thing(new CListener(&calls, name)); }
    static std::int64_t CountOf(const Thing& thing) { return dynamic_cast<System::Object&>(*thing).ReferenceCount(); }
    // Hangs when the general critical section was left held.
    static void ExpectLockFree()
    {
        std::thread([] { System::EnterGeneralCriticalSection(), System::LeaveGeneralCriticalSection(); }).join();
    }

    Calls calls;
    Thing source{new CSource};
    TestEvent& changed = Source(source).Changed;
    Thing a = NewListener("a"), b = NewListener("b"), c = NewListener("c"), d = NewListener("d");
};

TEST_F(EventTest, HandlersFireInConnectionOrderAfterInsertedOnesWithOneArgsObject)
{
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed.Insert(5, Listener(c).Handler());
    changed.Insert(0, Listener(d).Handler());

    std::vector<System::IEventArgs*> seen;
    for (const Thing& listener : {a, b, c, d})
        Listener(listener).onCall = [&](Interface* sender, Args& args) {
            EXPECT_EQ(sender, static_cast<Interface*>(source.Get()));
            seen.push_back(args.Get());
        };
    Args args = Empty();
    changed.Fire(args);
    EXPECT_EQ(calls, (Calls{"d", "c", "a", "b"}));
    EXPECT_EQ(seen, std::vector<System::IEventArgs*>(4, args.Get()));
}

TEST_F(EventTest, ChangesDuringAFiringTakeEffectAsTheWalkGoesOn)
{
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(c).Handler();
    Listener(a).onCall = [&](Interface*, Args&) {
        changed -= Listener(a).Handler();
        EXPECT_EQ(changed.HandlerCount(), 2) << "a removal counts at once";
        changed += Listener(d).Handler();
        EXPECT_EQ(changed.HandlerCount(), 2) << "an addition counts once the firing is over";
    };
    Listener(b).onCall = [&](Interface*, Args&) { changed -= Listener(c).Handler(); };
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"a", "b"}));

    calls.clear();
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "d"}));
}

TEST_F(EventTest, RemovalMatchesTargetAndSenderOnlyAndConsumesTheKey)
{
    TestEvent empty;
    empty -= Listener(a).Handler(); // freed: the leak check of the sanitizer build tells

    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(a).OtherHandler();
    changed -= Listener(a).OtherHandler();
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "a'"})) << "the first handler of the target went, whatever its callback";
    EXPECT_EQ(Listener(a).EventHandlerCount(), 1);

    // Disconnect takes the handler out of the event only; the target still
    // knows it and frees it when it goes.
    System::EventHandlerBase* kept = Listener(b).OtherHandler();
    changed += kept;
    kept->Disconnect();
    EXPECT_EQ(changed.HandlerCount(), 2);
    EXPECT_EQ(Listener(b).EventHandlerCount(), 2);
}

TEST_F(EventTest, AHandlerOfTheWrongClassIsRefusedAndConsumed)
{
    struct CForeignHandler : System::EventHandlerBase {
        System::EventTargetBase* Target() override { return nullptr; }
        void DetachFromEvent() override {}
        void DetachFromTarget() override {}
        void Disconnect() override {}
    };
    changed += Listener(a).Handler();
    for (auto misuse : std::initializer_list<std::function<void()>>{[&] { changed += new CForeignHandler; },
                                                                    [&] { changed.Insert(0, new CForeignHandler); },
                                                                    [&] { changed -= new CForeignHandler; }}) {
        std::wstring message = RaisedMessage(misuse);
        EXPECT_EQ(message.rfind(L"Expected EventHandler class : <", 0), 0u) << System::ToAnsi(message);
        EXPECT_NE(message.find(L"EventHandler1Base<"), std::wstring::npos);
        EXPECT_NE(message.find(L"CForeignHandler provided instead."), std::wstring::npos);
        ExpectLockFree();
        EXPECT_EQ(changed.HandlerCount(), 1);
    }
}

TEST_F(EventTest, AThrowingHandlerEndsTheFiringAndReachesTheCallerUnchanged)
{
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(c).Handler();
    Pointer<System::IException, 0> thrown;
    Listener(b).onCall = [&](Interface*, Args&) {
        changed -= Listener(a).Handler();
        changed += Listener(d).Handler();
        thrown = QUILON_MAKE_EXCEPTION(L"handler failed");
        throw Pointer<System::IException, 1>(thrown);
    };
    Pointer<System::IException, 0> caught = Raised([&] { changed.Fire(Empty()); });
    EXPECT_EQ(caught.Get(), thrown.Get());
    EXPECT_EQ(calls, (Calls{"a", "b"}));
    ExpectLockFree();
    EXPECT_EQ(changed.HandlerCount(), 3) << "the walk's removal and addition have settled";
    EXPECT_EQ(CountOf(source), 1) << "the sender's reference was released";

    Listener(b).onCall = [](Interface*, Args&) { throw std::runtime_error("plain"); };
    EXPECT_THROW(changed.Fire(Empty()), std::runtime_error);
    Listener(b).onCall = nullptr;
    calls.clear();
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "c", "d"}));
}

TEST_F(EventTest, FiringHoldsTheSenderAndTheTargetButDestructionEventsHoldNoSender)
{
    std::vector<std::int64_t> counts;
    Listener(a).onCall = [&](Interface*, Args&) { counts = {CountOf(source), CountOf(a)}; };
    changed += Listener(a).Handler();
    changed.Fire(Empty());
    EXPECT_EQ(counts, (std::vector<std::int64_t>{2, 2}));

    System::DestroyedEvent& destroyed = Source(source).Destroyed();
    destroyed += Listener(a).Handler();
    destroyed.Fire(Empty());
    EXPECT_EQ(counts, (std::vector<std::int64_t>{1, 2}));
}

// The target's handlers stand in another order in the event, which has no
// sender: a handler freed by the target while the event still listed it
// would be called next.
TEST_F(EventTest, ATargetDestroyedWhileConnectedIsDisconnectedEverywhere)
{
    TestEvent global;
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    global += Listener(a).Handler();
    global.Insert(0, Listener(a).OtherHandler());
    a = b;
    EXPECT_EQ(changed.HandlerCount(), 1);
    EXPECT_EQ(global.HandlerCount(), 0);
    changed.Fire(Empty());
    global.Fire(Empty());
    EXPECT_EQ(calls, Calls{"b"});
}

TEST_F(EventTest, AnEventDestroyedFirstFreesItsHandlersAndLeavesTheTargetsLists)
{
    Interface* senders[] = {source.Get(), nullptr};
    for (Interface* sender : senders) {
        {
            TestEvent event(sender);
            event += Listener(a).Handler();
            event.Insert(0, Listener(a).OtherHandler());
        }
        EXPECT_EQ(Listener(a).EventHandlerCount(), 0);
    }
    // The handler drops the last reference to the event's owner: the
    // firing holds the sender, so the event dies once the walk is over.
    Thing owner(new CSource);
    Listener(a).onCall = [&](Interface*, Args&) { owner = source; };
    Source(owner).Changed += Listener(a).Handler();
    Source(owner).Changed.Fire(Empty());
    EXPECT_EQ(calls, Calls{"a"});
    EXPECT_EQ(Listener(a).EventHandlerCount(), 0);
}

TEST_F(EventTest, CopiesListTheSameHandlersAndOnlyTheOriginalDisconnectsThem)
{
    changed += Listener(a).Handler();
    {
        TestEvent copy(changed);
        EXPECT_EQ(copy.Sender(), changed.Sender());
        copy.Fire(Empty());
        TestEvent assigned;
        assigned += Listener(a).OtherHandler();
        assigned = changed;
        EXPECT_EQ(assigned.HandlerCount(), 2) << "assignment appends";
    }
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"a", "a"}));
    EXPECT_EQ(Listener(a).EventHandlerCount(), 1);
}

} // namespace Quilon_::Tests::EventTests
