// Reference counts and the deletion sequence of concrete objects.
#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/Raise.h"

#include "../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace Quilon_::Tests::ObjectTests {

using namespace Kernel;
using System::Object;
using System::Pointer;
using System::UnsafeDeallocator;
using Steps = std::vector<std::string>;

// The count at which a dying object is parked.
constexpr std::int64_t ParkedCount = 0xFFFFFFF;

// Writes each step of its deletion into `log`: "clear" for its event
// target, "notify" for its destruction events, "destroy" for the
// destructor. Clearing runs `failClear` and the destructor `failDestroy`,
// which may throw.
class CObserved : public System::Template::ObjectImpl<CObserved, IThing, System::IDestructionEvents>,
                  private System::EventTarget {
public:
    explicit CObserved(Steps& log) : m_log(log) {}
    ~CObserved() override
    {
        m_log.push_back("destroy");
        failDestroy();
    }

    int Value() override { return 0; }
    System::EventTarget* AsEventTarget() override { return this; }
    System::IDestructionEvents* AsIDestructionEvents() override { return this; }
    void NotifyDestroyed() override
    {
        m_log.push_back("notify");
        onNotify();
    }
    System::DestroyedEvent& Destroyed() override { return m_destroyed; }

    std::function<void()> onNotify = [] {}, failClear = [] {}, failDestroy = [] {};

private:
    void Add(System::EventHandlerBase*) override {}
    void Remove(System::EventHandlerBase*) override {}
    void ClearEventHandlers() override
    {
        m_log.push_back("clear");
        failClear();
    }
    void OnEventTargetReset() override {}

    Steps& m_log;
    System::DestroyedEvent m_destroyed{this};
};

TEST(ReferenceCountTest, DeletionBreaksConnectionsThenNotifiesThenDestroysOnce)
{
    Steps log;
    auto* observed = new CObserved(log);
    IThing* raw = observed;
    EXPECT_EQ(raw->AddReference(), 1);
    EXPECT_EQ(raw->AddReference(), 2);
    EXPECT_EQ(raw->ReleaseReference(), 1);

    // Notified, the object takes and drops a reference, and releases the
    // last one of another object: deletion runs without the count lock, so
    // the chain neither deadlocks nor deletes twice.
    int destructions = 0;
    auto inner = std::make_shared<Pointer<IThing, 0>>(new CThing(&destructions));
    std::int64_t countWhenNotified = 0;
    observed->onNotify = [&, inner] {
        Pointer<IThing, 1> again(observed);
        countWhenNotified = observed->ReferenceCount();
        *inner = nullptr;
    };
    inner.reset();
    EXPECT_EQ(raw->ReleaseReference(), 0);
    EXPECT_EQ(log, (Steps{"clear", "notify", "destroy"}));
    EXPECT_EQ(countWhenNotified, ParkedCount + 1);
    EXPECT_EQ(destructions, 1);
}

TEST(ReferenceCountTest, ObjectStaysAliveAtZeroWhenFinalisedOrGuarded)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    {
        Pointer<IThing, 0> held(thing);
        System::Detail::PreventDestruction guard(*thing);
        EXPECT_EQ(thing->ReferenceCount(), 2);
        held = nullptr;
    }
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    IThing* raw = thing;
    raw->AddReference();
    const int state = System::InitializationState();
    System::SetInitializationState(-1);
    EXPECT_EQ(raw->ReleaseReference(), 0);
    System::SetInitializationState(state);
    EXPECT_EQ(destructions, 0);

    Pointer<IThing, 1>{thing}; // an ordinary last release still deletes
    EXPECT_EQ(destructions, 1);
}

TEST(DeletionTest, FailuresAreTracedUnderAllocationAndNeverReachTheCaller)
{
    auto* trace = new CRecordingTrace;
    Library::SetTraceManager(Pointer<System::Diagnostic::ITraceManager, 0>(trace));
    const std::pair<std::function<void()>, std::wstring> cases[] = {
        {[] { QUILON_RAISE(L"boom"); }, L"Delete failed (boom)"},
        {[] { throw std::runtime_error("disk on fire"); }, L"Delete failed (disk on fire)"},
        {[] { throw 42; }, L"Delete failed (unknown exception)"},
    };
    for (const auto& [failure, message] : cases) {
        SCOPED_TRACE(System::ToAnsi(message));
        trace->traced.clear();
        Steps log;
        auto* observed = new CObserved(log);
        observed->failClear = failure;

        EXPECT_NO_THROW((Pointer<IThing, 1>{observed}));
        EXPECT_EQ(trace->traced, (std::vector<std::pair<std::wstring, std::wstring>>{{message, L"Allocation"}}));
        EXPECT_EQ(log, Steps{"clear"}) << "the steps after the failure are skipped";
        // Hangs if the general section was left held.
        std::thread([] { System::EnterGeneralCriticalSection(), System::LeaveGeneralCriticalSection(); }).join();

        // The object survived the failed deletion; this one succeeds.
        observed->failClear = [] {};
        Object* object = observed;
        UnsafeDeallocator::Delete(object);
        EXPECT_EQ(log.back(), "destroy");

        // A destructor that throws ends the deletion, not the process, and
        // the pointer is null all the same.
        trace->traced.clear();
        log.clear();
        observed = new CObserved(log);
        observed->failDestroy = failure;
        object = observed;
        UnsafeDeallocator::Delete(object);
        EXPECT_EQ(object, nullptr);
        EXPECT_EQ(log, (Steps{"clear", "notify", "destroy"}));
        EXPECT_EQ(trace->traced,
                  (std::vector<std::pair<std::wstring, std::wstring>>{{message, L"Allocation"}}));
    }
    Library::SetTraceManager(nullptr);
    Library::ErrorManager()->TakeLastError();
}

// Counts are kept correct by the library, not by the callers: each thread
// copies both objects, so copies of one object and of different objects
// race, and no reference may be lost or invented.
TEST(ReferenceCountTest, CopiesOnTwoThreadsKeepTheCounts)
{
    int destructions[2] = {0, 0};
    CThing* things[2] = {new CThing(&destructions[0]), new CThing(&destructions[1])};
    Pointer<IThing, 1> held[2] = {Pointer<IThing, 1>(things[0]), Pointer<IThing, 1>(things[1])};
    auto copyLoop = [&](int own) {
        for (int i = 0; i < 100000; ++i) {
            Pointer<IThing, 1> mine(held[own]);
            Pointer<IThing, 0> theirs(held[1 - own]);
        }
    };
    std::thread first(copyLoop, 0);
    std::thread second(copyLoop, 1);
    first.join();
    second.join();

    EXPECT_EQ(things[0]->ReferenceCount(), 1);
    EXPECT_EQ(things[1]->ReferenceCount(), 1);
    held[0] = held[1] = Pointer<IThing, 1>(new CThing);
    EXPECT_EQ(destructions[0] + destructions[1], 2);
}

} // namespace Quilon_::Tests::ObjectTests
