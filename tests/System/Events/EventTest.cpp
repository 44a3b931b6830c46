// Order, removal and life cycle of events and their handlers.
#include "Quilon_/Library.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/EventDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace Quilon_::Tests::EventTests {

using namespace Events;
using Kernel::IThing;
using System::EventArgs::Empty;
using System::Pointer;
using Thing = Pointer<IThing, 1>;

// Fails (by hanging) when the general critical section was left held.
void ExpectLockFree()
{
    std::thread([] { System::EnterGeneralCriticalSection(), System::LeaveGeneralCriticalSection(); }).join();
}

class EventTest : public testing::Test {
protected:
    Thing NewListener(const std::string& name) { return Thing(new CListener(calls, name)); }

    Calls calls;
    Thing source{new CSource};
    TestEvent& changed = Source(source).Changed;
};

TEST_F(EventTest, HandlersFireInConnectionOrderAfterInsertedOnesWithOneArgsObject)
{
    Thing a = NewListener("a"), b = NewListener("b"), c = NewListener("c"), d = NewListener("d");
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed.Insert(5, Listener(c).Handler());
    changed.Insert(0, Listener(d).Handler());
    EXPECT_EQ(changed.HandlerCount(), 4);

    std::vector<System::IEventArgs*> seen;
    for (const Thing& listener : {a, b, c, d})
        Listener(listener).onCall = [&](System::Interface* sender, Args& args) {
            EXPECT_EQ(sender, static_cast<System::Interface*>(source.Get()));
            seen.push_back(args.Get());
        };
    Args args = Empty();
    changed.Fire(args);
    EXPECT_EQ(calls, (Calls{"d", "c", "a", "b"}));
    EXPECT_EQ(seen, std::vector<System::IEventArgs*>(4, args.Get()));
}

TEST_F(EventTest, ChangesDuringAFiringTakeEffectAsTheWalkGoesOn)
{
    Thing a = NewListener("a"), b = NewListener("b"), c = NewListener("c"), d = NewListener("d");
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(c).Handler();
    Listener(a).onCall = [&](System::Interface*, Args&) {
        changed -= Listener(a).Handler();
        EXPECT_EQ(changed.HandlerCount(), 2) << "a removal counts at once";
        changed += Listener(d).Handler();
        EXPECT_EQ(changed.HandlerCount(), 2) << "an addition counts once the firing is over";
    };
    Listener(b).onCall = [&](System::Interface*, Args&) { changed -= Listener(c).Handler(); };

    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"a", "b"}));
    EXPECT_EQ(changed.HandlerCount(), 2);
    EXPECT_EQ(Listener(a).EventHandlerCount(), 0);

    calls.clear();
    Listener(b).onCall = nullptr;
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "d"}));
}

TEST_F(EventTest, RemovalMatchesTargetAndSenderOnlyAndConsumesTheKey)
{
    TestEvent empty;
    Thing a = NewListener("a"), b = NewListener("b");
    empty -= Listener(a).Handler(); // the key is freed: the leak check of the sanitizer build tells

    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(a).OtherHandler();
    EXPECT_EQ(Listener(a).EventHandlerCount(), 2);

    changed -= Listener(a).OtherHandler();
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "a'"})) << "the first handler of the target went, whatever its callback";
    EXPECT_EQ(Listener(a).EventHandlerCount(), 1);

    // Disconnect takes the handler out of the event only; the target
    // still knows it and frees it when it goes.
    System::EventHandlerBase* kept = Listener(b).Handler();
    changed += kept;
    kept->Disconnect();
    EXPECT_EQ(changed.HandlerCount(), 2);
    EXPECT_EQ(Listener(b).EventHandlerCount(), 2);
    changed -= Listener(b).Handler();
    EXPECT_EQ(changed.HandlerCount(), 1);
}

TEST_F(EventTest, AHandlerOfTheWrongClassIsRefusedAndConsumed)
{
    using OtherArgs = Pointer<System::ICloneable, 1>;
    struct COtherListener : CListener {
        using CListener::CListener;
        void OnOther(System::Interface*, OtherArgs) {}
    };
    Thing a = NewListener("a");
    auto* otherListener = new COtherListener(calls, "x");
    Thing other(otherListener);
    changed += Listener(a).Handler();

    auto wrong = [&] { return System::NewEventHandler(otherListener, &COtherListener::OnOther); };
    for (auto connect : std::initializer_list<std::function<void()>>{
             [&] { changed += wrong(); },
             [&] { changed.Insert(0, wrong()); },
             [&] { changed -= wrong(); },
         }) {
        std::wstring message = RaisedMessage(connect);
        EXPECT_EQ(message.rfind(L"Expected EventHandler class : <", 0), 0u) << System::ToAnsi(message);
        EXPECT_NE(message.find(L"EventHandler1Base<"), std::wstring::npos);
        EXPECT_NE(message.find(L"> provided instead."), std::wstring::npos);
        ExpectLockFree();
        EXPECT_EQ(changed.HandlerCount(), 1);
        EXPECT_EQ(Listener(other).EventHandlerCount(), 0);
    }
    changed.Fire(Empty());
    EXPECT_EQ(calls, Calls{"a"});
}

TEST_F(EventTest, AThrowingHandlerEndsTheFiringAndReachesTheCallerUnchanged)
{
    Thing a = NewListener("a"), b = NewListener("b"), c = NewListener("c"), d = NewListener("d");
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(c).Handler();
    const std::int64_t sourceCount = source->AddReference() - 1;
    source->ReleaseReference();

    Pointer<System::IException, 0> thrown;
    Listener(b).onCall = [&](System::Interface*, Args&) {
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
    EXPECT_EQ(source->AddReference() - 1, sourceCount) << "the sender's reference was released";
    source->ReleaseReference();

    Listener(b).onCall = [](System::Interface*, Args&) { throw std::runtime_error("plain"); };
    calls.clear();
    EXPECT_THROW(changed.Fire(Empty()), std::runtime_error);
    EXPECT_EQ(calls, (Calls{"b"}));

    Listener(b).onCall = nullptr;
    calls.clear();
    changed.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"b", "c", "d"}));
    Library::ErrorManager()->TakeLastError();
}

TEST_F(EventTest, FiringHoldsTheSenderAndTheTargetButDestructionEventsHoldNoSender)
{
    Thing a = NewListener("a");
    auto countOf = [](const Thing& thing) { return dynamic_cast<System::Object&>(*thing).ReferenceCount(); };
    std::vector<std::int64_t> counts;
    Listener(a).onCall = [&](System::Interface*, Args&) { counts = {countOf(source), countOf(a)}; };

    changed += Listener(a).Handler();
    changed.Fire(Empty());
    EXPECT_EQ(counts, (std::vector<std::int64_t>{2, 2}));

    auto& destroyed = dynamic_cast<System::IDestructionEvents&>(*source).Destroyed();
    destroyed += Listener(a).Handler();
    destroyed.Fire(Empty());
    EXPECT_EQ(counts, (std::vector<std::int64_t>{1, 2}));

    TestEvent global;
    global += Listener(a).Handler();
    global.Fire(Empty());
    EXPECT_EQ(calls, (Calls{"a", "a", "a"}));
    EXPECT_EQ(global.Sender(), nullptr);
}

TEST_F(EventTest, ATargetDestroyedWhileConnectedIsDisconnectedEverywhere)
{
    int destructions = 0;
    Thing a(new CListener(calls, "a", &destructions));
    Thing b = NewListener("b");
    TestEvent global;
    changed += Listener(a).Handler();
    changed += Listener(b).Handler();
    changed += Listener(a).OtherHandler();
    global += Listener(a).Handler();

    a = b;
    EXPECT_EQ(destructions, 1);
    EXPECT_EQ(changed.HandlerCount(), 1);
    EXPECT_EQ(global.HandlerCount(), 0);
    changed.Fire(Empty());
    global.Fire(Empty());
    EXPECT_EQ(calls, Calls{"b"});
}

// Its handlers stand in one order in the target's list and in another in
// the event's, and the event has no sender, so that a handler freed by the
// target while the event still lists it would be called next.
TEST_F(EventTest, ATargetDestroyedWithHandlersInInsertedOrderLeavesNothingBehind)
{
    TestEvent global;
    Thing a = NewListener("a");
    global += Listener(a).Handler();
    global.Insert(0, Listener(a).OtherHandler());
    a = NewListener("b");
    EXPECT_EQ(global.HandlerCount(), 0);
    global.Fire(Empty());
    EXPECT_TRUE(calls.empty());
}

TEST_F(EventTest, AnEventDestroyedFirstFreesItsHandlersAndLeavesTheTargetsLists)
{
    Thing a = NewListener("a");
    System::Interface* senders[] = {source.Get(), nullptr};
    for (System::Interface* sender : senders) {
        {
            TestEvent event(sender);
            event += Listener(a).Handler();
            event.Insert(0, Listener(a).OtherHandler());
            EXPECT_EQ(Listener(a).EventHandlerCount(), 2);
        }
        EXPECT_EQ(Listener(a).EventHandlerCount(), 0);
    }
    // A handler drops the last reference to the event's owner: the firing
    // holds the sender, so the event dies once the walk is over.
    Thing owner(new CSource);
    Listener(a).onCall = [&](System::Interface*, Args&) { owner = source; };
    Source(owner).Changed += Listener(a).Handler();
    Source(owner).Changed.Fire(Empty());
    EXPECT_EQ(calls, Calls{"a"});
    EXPECT_EQ(Listener(a).EventHandlerCount(), 0);
}

TEST_F(EventTest, CopiesListTheSameHandlersAndOnlyTheOriginalDisconnectsThem)
{
    Thing a = NewListener("a");
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

TEST(DestructionEventsTest, DeletionTellsTheListenersWithTheObjectAsSender)
{
    Calls calls;
    Thing listener(new CListener(calls, "a"));
    auto* source = new CSource;
    Pointer<IThing, 0> held(source);
    EXPECT_EQ(source->AsIDestructionEvents(), static_cast<System::IDestructionEvents*>(source));
    EXPECT_EQ(Listener(listener).AsEventTarget(), static_cast<System::EventTarget*>(&Listener(listener)));
    System::Interface* sender = nullptr;
    System::Interface* const sourceObject = source;
    Listener(listener).onCall = [&](System::Interface* from, Args&) { sender = from; };
    source->Destroyed() += Listener(listener).Handler();
    source->Changed += Listener(listener).OtherHandler();

    held = nullptr;
    EXPECT_EQ(calls, Calls{"a"});
    EXPECT_EQ(sender, sourceObject);
    EXPECT_EQ(Listener(listener).EventHandlerCount(), 0);
}

} // namespace Quilon_::Tests::EventTests
