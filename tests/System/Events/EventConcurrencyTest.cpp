// Events, handler lists and weak references used from two threads at once.
//
// The runs are short by default; QUILON_STRESS=<factor> multiplies the
// iterations (make stress). They are meant for the sanitizer builds too,
// where a lost reference or a call into a freed listener is reported.
#include "Quilon_/System/WeakReference.h"

#include "../../Support/EventDoubles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

namespace Quilon_::Tests::EventConcurrencyTests {

using namespace Events;
using Kernel::IThing;
using System::EventArgs::Empty;
using System::Pointer;
using Thing = Pointer<IThing, 1>;

int Iterations(int base)
{
    const char* factor = std::getenv("QUILON_STRESS");
    return factor ? base * std::max(1, std::atoi(factor)) : base;
}

// Counts its calls, and calls made into it after its destructor began.
class CCounter : public System::Template::ObjectImpl<CCounter, IThing, System::EventTarget> {
public:
    CCounter(std::atomic<int>& callsIntoDead) : m_callsIntoDead(callsIntoDead) {}
    ~CCounter() override { m_alive.store(false); }
    int Value() override { return 0; }
    void OnEventTargetReset() override {}

    void OnFired(System::Interface*, Args)
    {
        if (!m_alive.load())
            ++m_callsIntoDead;
        ++calls;
        if (onCall)
            onCall();
    }
    void OnOther(System::Interface* sender, Args args) { OnFired(sender, std::move(args)); }
    System::EventHandlerBase* Handler() { return System::NewEventHandler(this, &CCounter::OnFired); }

    std::atomic<int> calls{0};
    std::function<void()> onCall;

private:
    std::atomic<bool> m_alive{true};
    std::atomic<int>& m_callsIntoDead;
};

CCounter& Counter(const Thing& thing)
{
    return dynamic_cast<CCounter&>(*thing);
}

TEST(EventConcurrencyTest, FiringWhileListenersConnectDisconnectAndDie)
{
    Thing source(new CSource);
    TestEvent& changed = Source(source).Changed;
    std::atomic<int> callsIntoDead{0};

    // A permanent listener that changes the list from inside the firing.
    Thing restless(new CCounter(callsIntoDead));
    Thing visitor(new CCounter(callsIntoDead));
    Counter(restless).onCall = [&] {
        changed += Counter(visitor).Handler();
        changed -= Counter(visitor).Handler();
    };
    changed += Counter(restless).Handler();

    std::atomic<bool> done{false};
    std::atomic<int> firings{0};
    std::thread firing([&] {
        while (!done.load()) {
            changed.Fire(Empty());
            ++firings;
        }
    });
    while (firings.load() == 0)
        std::this_thread::yield();
    for (int i = 0; i < Iterations(1000); ++i) {
        Thing listener(new CCounter(callsIntoDead));
        changed += Counter(listener).Handler();
        changed.Insert(0, System::NewEventHandler(&Counter(listener), &CCounter::OnOther));
        switch (i % 3) {
        case 0: // one handler removed, the other goes with its target
            changed -= Counter(listener).Handler();
            break;
        case 1: { // a second event dies with the target's handler on it
            TestEvent local(source.Get());
            local += Counter(listener).Handler();
            break;
        }
        default: // the target dies while both are connected
            break;
        }
    }
    done.store(true);
    firing.join();

    EXPECT_EQ(callsIntoDead.load(), 0);
    EXPECT_EQ(changed.HandlerCount(), 1);
    EXPECT_EQ(Counter(restless).EventHandlerCount(), 1);
    EXPECT_EQ(Counter(visitor).EventHandlerCount(), 0);
}

TEST(EventConcurrencyTest, TwoThreadsFireOneEventAndEveryCountComesBack)
{
    Thing source(new CSource);
    TestEvent& changed = Source(source).Changed;
    std::atomic<int> callsIntoDead{0};
    std::vector<Thing> listeners;
    for (int i = 0; i < 4; ++i) {
        listeners.emplace_back(new CCounter(callsIntoDead));
        changed += Counter(listeners.back()).Handler();
    }
    // Handlers added and removed during overlapping firings wait for the
    // last walk of either thread.
    Thing visitor(new CCounter(callsIntoDead));
    Counter(listeners[0]).onCall = [&] {
        changed += Counter(visitor).Handler();
        changed -= Counter(visitor).Handler();
    };

    Args args = Empty();
    const int firings = Iterations(2000);
    auto fire = [&] {
        for (int i = 0; i < firings; ++i)
            changed.Fire(args);
    };
    std::thread first(fire), second(fire);
    first.join();
    second.join();

    for (const Thing& listener : listeners) {
        EXPECT_EQ(Counter(listener).calls.load(), 2 * firings);
        EXPECT_EQ(Counter(listener).ReferenceCount(), 1);
    }
    EXPECT_EQ(changed.HandlerCount(), 4);
    EXPECT_EQ(Counter(visitor).EventHandlerCount(), 0);
    EXPECT_EQ(dynamic_cast<System::Object&>(*source).ReferenceCount(), 1);
    EXPECT_EQ(dynamic_cast<System::Object&>(*args).ReferenceCount(), 2) << "this one and the shared instance";
    EXPECT_EQ(callsIntoDead.load(), 0);
}

TEST(EventConcurrencyTest, AWeakReferenceReadWhileItsObjectDiesGivesTheObjectOrNull)
{
    System::WeakReference<IThing> weak;
    std::atomic<bool> done{false};
    std::atomic<int> reads{0};
    std::thread reader([&] {
        while (!done.load()) {
            if (Pointer<IThing, 0> alive = weak.Target()) {
                EXPECT_EQ(alive->Value(), 0);
            }
            ++reads;
        }
    });
    while (reads.load() == 0)
        std::this_thread::yield();
    struct CCountedSource : CSource {
        explicit CCountedSource(std::atomic<int>& destroyed) : m_destroyed(destroyed) {}
        ~CCountedSource() override { ++m_destroyed; }
        std::atomic<int>& m_destroyed;
    };
    std::atomic<int> destroyed{0};
    const int objects = Iterations(2000);
    for (int i = 0; i < objects; ++i) {
        // The reader may hold the last reference, and the object dies there.
        Pointer<IThing, 0> object(new CCountedSource(destroyed));
        weak.SetTarget(object.Get());
    }
    done.store(true);
    reader.join();
    EXPECT_FALSE(weak.Target());
    EXPECT_EQ(destroyed.load(), objects);
}

} // namespace Quilon_::Tests::EventConcurrencyTests
