// Events, handler lists and weak references used from two threads at once.
//
// The runs are short by default; QUILON_STRESS=<factor> multiplies the
// iterations (make stress). They are meant for the sanitizer builds too,
// where a lost reference or a call into a freed listener is reported.
#include "Quilon_/System/WeakReference.h"

#include "../../Support/EventDoubles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

namespace Quilon_::Tests::EventConcurrencyTests {

using namespace Events;
using System::EventArgs::Empty;

int Iterations(int base)
{
    const char* factor = std::getenv("QUILON_STRESS");
    return factor ? base * std::max(1, std::atoi(factor)) : base;
}

// Runs `work` on another thread until the scope ends, from its first round
// on.
class Background {
public:
    explicit Background(std::function<void()> work)
        : m_thread([this, work] {
              for (; !m_done.load(); ++m_rounds)
                  work();
          })
    {
        while (m_rounds.load() == 0)
            std::this_thread::yield();
    }
    ~Background() { m_done.store(true), m_thread.join(); }

private:
    std::atomic<bool> m_done{false};
    std::atomic<int> m_rounds{0};
    std::thread m_thread;
};

TEST(EventConcurrencyTest, FiringWhileListenersConnectDisconnectAndDie)
{
    Thing source(new CSource);
    TestEvent& changed = Source(source).Changed;
    std::atomic<int> callsIntoDead{0};
    // A permanent listener that changes the list from inside the firing.
    Thing restless(new CListener), visitor(new CListener);
    Listener(restless).onCall = [&](System::Interface*, Args&) {
        changed += Listener(visitor).Handler();
        changed -= Listener(visitor).Handler();
    };
    changed += Listener(restless).Handler();
    {
        Background firing([&] { changed.Fire(Empty()); });
        for (int i = 0; i < Iterations(1000); ++i) {
            Thing listener(new CListener(nullptr, {}, &callsIntoDead));
            changed += Listener(listener).Handler();
            changed.Insert(0, Listener(listener).OtherHandler());
            if (i % 3 == 0) {
                changed -= Listener(listener).Handler();
            } else if (i % 3 == 1) {
                TestEvent local(source.Get());
                local += Listener(listener).Handler();
            }
        }
    }
    EXPECT_EQ(callsIntoDead.load(), 0);
    EXPECT_EQ(changed.HandlerCount(), 1);
    EXPECT_EQ(Listener(visitor).EventHandlerCount(), 0);
}

TEST(EventConcurrencyTest, TwoThreadsFireOneEventAndEveryCountComesBack)
{
    Thing source(new CSource);
    TestEvent& changed = Source(source).Changed;
    std::vector<Thing> listeners;
    for (int i = 0; i < 4; ++i) {
        listeners.emplace_back(new CListener);
        changed += Listener(listeners.back()).Handler();
    }
    // Handlers added and removed during overlapping firings wait for the
    // last walk of either thread.
    Thing visitor(new CListener);
    Listener(listeners[0]).onCall = [&](System::Interface*, Args&) {
        changed += Listener(visitor).Handler();
        changed -= Listener(visitor).Handler();
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
        EXPECT_EQ(Listener(listener).count.load(), 2 * firings);
        EXPECT_EQ(Listener(listener).ReferenceCount(), 1);
    }
    EXPECT_EQ(changed.HandlerCount(), 4);
    EXPECT_EQ(Listener(visitor).EventHandlerCount(), 0);
    EXPECT_EQ(Source(source).ReferenceCount(), 1);
    EXPECT_EQ(dynamic_cast<System::Object&>(*args).ReferenceCount(), 2) << "this one and the shared instance";
}

TEST(EventConcurrencyTest, AWeakReferenceReadWhileItsObjectDiesGivesTheObjectOrNull)
{
    struct CCountedSource : CSource {
        explicit CCountedSource(std::atomic<int>& destroyed) : m_destroyed(destroyed) {}
        ~CCountedSource() override { ++m_destroyed; }
        std::atomic<int>& m_destroyed;
    };
    System::WeakReference<Kernel::IThing> weak;
    std::atomic<int> destroyed{0};
    const int objects = Iterations(2000);
    {
        Background reader([&] {
            if (System::Pointer<Kernel::IThing, 0> alive = weak.Target()) {
                EXPECT_EQ(alive->Value(), 0);
            }
        });
        // The reader may hold the last reference, and the object dies there.
        for (int i = 0; i < objects; ++i)
            weak.SetTarget(Thing(new CCountedSource(destroyed)).Get());
    }
    EXPECT_FALSE(weak.Target());
    EXPECT_EQ(destroyed.load(), objects);
}

} // namespace Quilon_::Tests::EventConcurrencyTests
