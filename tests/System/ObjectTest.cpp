#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/Object.h"
#include "Quilon_/System/Raise.h"

#include "../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Quilon_::Tests::ObjectTests {

using namespace Kernel;
using System::Object;
using System::Pointer;
using System::UnsafeDeallocator;

// The count at which a dying object is parked.
constexpr std::int64_t ParkedCount = 0xFFFFFFF;

// A step of the deletion sequence that can be made to fail.
enum class Failure { None, Exception, StdException, Other };

void Fail(Failure failure)
{
    switch (failure) {
    case Failure::None:
        return;
    case Failure::Exception:
        QUILON_RAISE(L"boom");
    case Failure::StdException:
        throw std::runtime_error("disk on fire");
    case Failure::Other:
        throw 42;
    }
}

// Writes each step of its deletion into `log`: "clear" for its event
// target, "notify" for its destruction events, "destroy" for the destructor.
class CObserved : public System::Template::ObjectImpl<CObserved, IThing, System::IDestructionEvents> {
public:
    explicit CObserved(std::vector<std::string>& log) : m_target(*this), m_log(log) {}
    ~CObserved() override
    {
        m_log.push_back("destroy");
        if (onDestroy)
            onDestroy();
    }

    int Value() override { return 0; }
    System::EventTarget* AsEventTarget() override { return &m_target; }
    System::IDestructionEvents* AsIDestructionEvents() override { return this; }
    void NotifyDestroyed() override
    {
        m_log.push_back("notify");
        if (onNotify)
            onNotify();
    }

    std::function<void()> onClear, onNotify, onDestroy;
    Failure failClear = Failure::None;

private:
    class Target : public System::EventTarget {
    public:
        explicit Target(CObserved& owner) : m_owner(owner) {}
        void Add(System::EventHandlerBase*) override {}
        void Remove(System::EventHandlerBase*) override {}
        void ClearEventHandlers() override
        {
            m_owner.m_log.push_back("clear");
            if (m_owner.onClear)
                m_owner.onClear();
            Fail(m_owner.failClear);
        }
        void OnEventTargetReset() override {}

    private:
        CObserved& m_owner;
    };

    Target m_target;
    std::vector<std::string>& m_log;
};

// Keeps what is traced.
class CRecordingTrace : public System::Template::ObjectImpl<CRecordingTrace, System::Diagnostic::ITraceManager> {
public:
    void Trace(const std::wstring& message, const std::wstring& category, const std::wstring&, const std::wstring&,
               std::int64_t) override
    {
        traced.emplace_back(message, category);
    }
    void Trace(const std::wstring& message, const std::wstring& category) override
    {
        traced.emplace_back(message, category);
    }

    std::vector<std::pair<std::wstring, std::wstring>> traced;
};

// Whether another thread can take the general critical section within a
// few seconds. On failure the waiting thread is left behind.
bool OtherThreadEntersGeneralSection()
{
    auto entered = std::make_shared<std::promise<void>>();
    std::future<void> done = entered->get_future();
    std::thread([entered] {
        System::EnterGeneralCriticalSection();
        System::LeaveGeneralCriticalSection();
        entered->set_value();
    }).detach();
    return done.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
}

TEST(ReferenceCountTest, CountsAreReturnedAndLastReleaseDeletesOnce)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    IThing* raw = thing;
    EXPECT_EQ(raw->AddReference(), 1);
    EXPECT_EQ(raw->AddReference(), 2);
    EXPECT_EQ(raw->ReleaseReference(), 1);
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(raw->ReleaseReference(), 0);
    EXPECT_EQ(destructions, 1);
}

TEST(ReferenceCountTest, DestructorTakingAndDroppingReferenceDoesNotDeleteAgain)
{
    int destructions = 0;
    std::int64_t countInDestructor = 0;
    auto* thing = new CThing(&destructions);
    thing->onDestroy = [&](CThing& self) {
        countInDestructor = self.AddReference();
        Pointer<IThing, 1> again(&self);
        self.ReleaseReference();
    };

    Pointer<IThing, 1>{thing};
    EXPECT_EQ(countInDestructor, ParkedCount + 1);
    EXPECT_EQ(destructions, 1);
}

TEST(ReferenceCountTest, DestroyedNotificationTakingReferenceDoesNotDeleteAgain)
{
    std::vector<std::string> log;
    auto* observed = new CObserved(log);
    std::int64_t countWhenNotified = 0;
    observed->onNotify = [&] {
        Pointer<IThing, 1> again(observed);
        countWhenNotified = observed->ReferenceCount();
    };

    Pointer<IThing, 1>{observed};
    EXPECT_EQ(countWhenNotified, ParkedCount + 1);
    EXPECT_EQ(log, (std::vector<std::string>{"clear", "notify", "destroy"}));
}

TEST(ReferenceCountTest, DestructorReleasingLastReferenceOfAnotherObjectDeletesIt)
{
    // Deletion runs without the count lock, so the chain cannot deadlock.
    int destructions = 0;
    auto* inner = new CThing(&destructions);
    auto* outer = new CThing(&destructions);
    auto held = std::make_shared<Pointer<IThing, 0>>(inner);
    outer->onDestroy = [held](CThing&) { *held = nullptr; };
    held.reset();

    Pointer<IThing, 1>{outer};
    EXPECT_EQ(destructions, 2);
}

TEST(ReferenceCountTest, AfterFinalisationLastReleaseLeavesObjectAlive)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    IThing* raw = thing;
    raw->AddReference();

    const int state = System::InitializationState();
    System::SetInitializationState(-1);
    std::int64_t released = raw->ReleaseReference();
    System::SetInitializationState(state);

    EXPECT_EQ(released, 0);
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    Object* leftOver = thing;
    UnsafeDeallocator::Delete(leftOver);
    EXPECT_EQ(destructions, 1);
}

TEST(PreventDestructionTest, KeepsObjectAliveAndLeavesCountAtZero)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    {
        Pointer<IThing, 0> held(thing);
        System::Detail::PreventDestruction guard(*thing);
        EXPECT_EQ(thing->ReferenceCount(), 2);
        held = nullptr;
        EXPECT_EQ(thing->ReferenceCount(), 1);
    }
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    // A guard on an object that nobody holds ends the same way.
    { System::Detail::PreventDestruction guard(*thing); }
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    Pointer<IThing, 1>{thing}; // an ordinary last release still deletes
    EXPECT_EQ(destructions, 1);
}

class UnsafeDeallocatorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_trace = new CRecordingTrace;
        Library::SetTraceManager(Pointer<System::Diagnostic::ITraceManager, 0>(m_trace));
    }
    void TearDown() override
    {
        Library::SetTraceManager(nullptr);
        Library::ErrorManager()->TakeLastError();
    }

    CRecordingTrace* m_trace = nullptr;
};

TEST_F(UnsafeDeallocatorTest, BreaksConnectionsNotifiesThenDestroysUnderGeneralSection)
{
    std::vector<std::string> log;
    auto* observed = new CObserved(log);

    // Started within the first step, the other thread must wait for the
    // whole sequence.
    std::atomic<bool> otherEntered{false};
    std::thread other;
    bool enteredBeforeDestructorEnded = true;
    observed->onClear = [&] {
        other = std::thread([&] {
            System::EnterGeneralCriticalSection();
            otherEntered = true;
            System::LeaveGeneralCriticalSection();
        });
    };
    observed->onDestroy = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        enteredBeforeDestructorEnded = otherEntered;
    };

    Object* object = observed;
    UnsafeDeallocator::Delete(object);
    other.join();

    EXPECT_EQ(log, (std::vector<std::string>{"clear", "notify", "destroy"}));
    EXPECT_FALSE(enteredBeforeDestructorEnded);
    EXPECT_TRUE(otherEntered);
    EXPECT_EQ(object, nullptr);
    EXPECT_TRUE(m_trace->traced.empty());

    Object* none = nullptr;
    UnsafeDeallocator::Delete(none); // nothing to do
    EXPECT_EQ(none, nullptr);
}

TEST_F(UnsafeDeallocatorTest, FailuresAreTracedUnderAllocationAndNeverEscape)
{
    const std::pair<Failure, std::wstring> cases[] = {
        {Failure::Exception, L"Delete failed (boom)"},
        {Failure::StdException, L"Delete failed (disk on fire)"},
        {Failure::Other, L"Delete failed (unknown exception)"},
    };
    for (const auto& [failure, message] : cases) {
        SCOPED_TRACE(testing::Message() << "failure " << static_cast<int>(failure));
        m_trace->traced.clear();
        std::vector<std::string> log;
        auto* observed = new CObserved(log);
        observed->failClear = failure;

        Object* object = observed;
        UnsafeDeallocator::Delete(object);

        EXPECT_EQ(object, nullptr);
        ASSERT_EQ(m_trace->traced.size(), 1u);
        EXPECT_EQ(m_trace->traced[0].first, message);
        EXPECT_EQ(m_trace->traced[0].second, L"Allocation");
        EXPECT_EQ(log, std::vector<std::string>{"clear"}) << "the steps after the failure are skipped";
        EXPECT_TRUE(OtherThreadEntersGeneralSection()) << "the general section was left held";

        // The object survived the failed deletion; this one succeeds.
        observed->failClear = Failure::None;
        object = observed;
        UnsafeDeallocator::Delete(object);
        EXPECT_EQ(log.back(), "destroy");
    }
}

TEST_F(UnsafeDeallocatorTest, FailureOfLastReleaseDoesNotReachTheCaller)
{
    std::vector<std::string> log;
    auto* observed = new CObserved(log);
    observed->failClear = Failure::StdException;

    EXPECT_NO_THROW(([&] { Pointer<IThing, 1>{observed}; }()));
    EXPECT_EQ(m_trace->traced.size(), 1u);

    observed->failClear = Failure::None;
    Object* object = observed;
    UnsafeDeallocator::Delete(object);
}

// Counts are kept correct by the library, not by the callers: copies made
// on several threads at once must neither lose nor invent references.
constexpr int Rounds = 100000;

TEST(ReferenceCountConcurrencyTest, CopiesOfOneObjectOnTwoThreadsKeepTheCount)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    Pointer<IThing, 1> shared(thing);

    auto copyLoop = [&] {
        for (int i = 0; i < Rounds; ++i) {
            Pointer<IThing, 1> copy(shared);
            Pointer<IThing, 0> another(copy);
        }
    };
    std::thread first(copyLoop);
    std::thread second(copyLoop);
    first.join();
    second.join();

    EXPECT_EQ(thing->ReferenceCount(), 1);
    EXPECT_EQ(destructions, 0);
    shared = Pointer<IThing, 1>(new CThing);
    EXPECT_EQ(destructions, 1);
}

TEST(ReferenceCountConcurrencyTest, CopiesOfDifferentObjectsOnTwoThreadsKeepTheirCounts)
{
    int destructions[2] = {0, 0};
    CThing* things[2] = {new CThing(&destructions[0]), new CThing(&destructions[1])};
    Pointer<IThing, 1> held[2] = {Pointer<IThing, 1>(things[0]), Pointer<IThing, 1>(things[1])};

    // Each thread copies its own object and the other thread's.
    auto copyLoop = [&](int own) {
        for (int i = 0; i < Rounds; ++i) {
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
    held[0] = held[1];
    EXPECT_EQ(destructions[0], 1);
    EXPECT_EQ(things[1]->ReferenceCount(), 2);
    held[1] = Pointer<IThing, 1>(new CThing);
    held[0] = held[1];
    EXPECT_EQ(destructions[1], 1);
}

TEST(ReferenceCountConcurrencyTest, LastReleasesRacingOnTwoThreadsDeleteOnce)
{
    constexpr int Objects = 2000;
    std::atomic<int> destructions{0};
    std::vector<Pointer<IThing, 0>> firstHalf, secondHalf;
    for (int i = 0; i < Objects; ++i) {
        auto* raw = new CThing;
        raw->onDestroy = [&](CThing&) { ++destructions; };
        Pointer<IThing, 0> thing(raw);
        firstHalf.push_back(thing);
        secondHalf.push_back(thing);
    }
    std::atomic<int> ready{0};
    auto release = [&](std::vector<Pointer<IThing, 0>>& held) {
        ++ready;
        while (ready < 2) {
        }
        for (auto& pointer : held) {
            Pointer<IThing, 0> copy(pointer);
            pointer = nullptr;
        }
    };
    std::thread first(release, std::ref(firstHalf));
    std::thread second(release, std::ref(secondHalf));
    first.join();
    second.join();

    EXPECT_EQ(destructions.load(), Objects);
}

} // namespace Quilon_::Tests::ObjectTests
