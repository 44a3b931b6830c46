// The reference library's thread pool as its users meet it: queued tasks,
// failures handed to the waiter, cancellation, and the calls from inside a
// pool's own threads that would otherwise wait for themselves. Each case that
// once hung is kept here; a hang shows as the test's timeout.
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Threading/ThreadPool.h"

#include "../../Images/Operators/SampleImages.h"
#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <thread>

namespace Quilon_::Tests::ThreadPoolImplementation {

using System::Pointer;
using System::Threading::IThreadPool;
using System::Threading::IThreadPoolJob;
using System::Threading::IThreadPoolTask;
namespace Globals = System::Threading::Globals;
using namespace std::chrono_literals;

class CTask : public System::Template::ObjectImpl<CTask, IThreadPoolTask> {
public:
    explicit CTask(std::function<void(CTask&)> body) : m_body(std::move(body)) {}
    void Execute() override { m_body(*this); }
    void Cancel() override { cancelled = true; }
    std::atomic<bool> cancelled{false};

private:
    std::function<void(CTask&)> m_body;
};

Pointer<IThreadPoolTask> Task(std::function<void(CTask&)> body)
{
    return Pointer<IThreadPoolTask>(new CTask(std::move(body)));
}

// Runs until cancelled.
void UntilCancelled(CTask& self)
{
    while (!self.cancelled)
        std::this_thread::sleep_for(1ms);
}

TEST(ThreadPoolImplementation, RunsTasksAndHandsTheirFailuresToTheWaiter)
{
    InChildProcess([] {
        StartBasic();
        // Start-up made one pool for processing and conversion alike.
        Pointer<IThreadPool, 0> processing = Globals::ProcessingThreadPool();
        ASSERT_TRUE(processing);
        EXPECT_EQ(processing->ThreadCount(), std::max<std::int64_t>(1, std::thread::hardware_concurrency()));
        EXPECT_TRUE(Globals::ConversionThreadPool() == processing);
        EXPECT_EQ(RaisedMessage([] { System::Threading::ThreadPool::New(0); }),
                  L"A thread pool needs at least one thread, not 0");

        Pointer<IThreadPool, 0> pool = System::Threading::ThreadPool::New(3);
        EXPECT_EQ(pool->ThreadCount(), 3);
        std::atomic<int> done{0};
        std::vector<Pointer<IThreadPoolJob>> jobs;
        for (int i = 0; i < 20; ++i)
            jobs.push_back(pool->Queue(Task([&](CTask&) {
                std::this_thread::sleep_for(1ms);
                ++done;
            })));
        jobs.front()->Wait();
        EXPECT_TRUE(jobs.front()->IsFinished());
        pool->WaitAll();
        EXPECT_EQ(done, 20);
        EXPECT_EQ(pool->PendingCount(), 0);

        Pointer<IThreadPoolJob> failing =
            pool->Queue(Task([](CTask&) { QUILON_RAISE(L"Task failed: %1%", 7); }));
        // Raised again on every wait, also after the task has ended.
        EXPECT_EQ(RaisedMessage([&] { failing->Wait(); }), L"Task failed: 7");
        EXPECT_EQ(RaisedMessage([&] { failing->Wait(); }), L"Task failed: 7");
        EXPECT_EQ(RaisedMessage([&] { pool->Queue(Pointer<IThreadPoolTask>()); }),
                  L"Pointer <Quilon_::System::Threading::IThreadPoolTask> : attempt to access a 0 pointer");
        Library::ErrorManager()->TakeLastError();

        // The threads are joined at shut-down.
        pool = nullptr;
        processing = nullptr;
        Library::Finalize();
    });
}

TEST(ThreadPoolImplementation, CancelAllCancelsRunningTasksAndDropsPendingOnes)
{
    InChildProcess([] {
        StartBasic();
        Pointer<IThreadPool> pool = System::Threading::ThreadPool::New(1);
        std::atomic<bool> started{false};
        std::atomic<int> ranLater{0};
        Pointer<IThreadPoolJob> running = pool->Queue(Task([&](CTask& self) {
            started = true;
            UntilCancelled(self);
        }));
        std::vector<Pointer<IThreadPoolJob>> pending;
        for (int i = 0; i < 3; ++i)
            pending.push_back(pool->Queue(Task([&](CTask&) { ++ranLater; })));
        while (!started)
            std::this_thread::sleep_for(1ms);
        EXPECT_EQ(pool->PendingCount(), 3);

        pool->CancelAll();
        EXPECT_EQ(pool->PendingCount(), 0);
        running->Wait();
        for (const Pointer<IThreadPoolJob>& job : pending) {
            EXPECT_TRUE(job->IsFinished());
            job->Wait();
        }
        pool->WaitAll();
        EXPECT_EQ(ranLater, 0);

        // The pool takes work again after a cancellation.
        pool->Queue(Task([&](CTask&) { ++ranLater; }))->Wait();
        EXPECT_EQ(ranLater, 1);
    });
}

// Each of these waited for ever before the pool learnt to handle it.
TEST(ThreadPoolImplementation, CallsFromItsOwnThreadsNeverWaitForThemselves)
{
    InChildProcess([] {
        StartBasic();
        // With one thread, a task that waits for a task queued after it, or
        // for the whole pool, runs the queued work itself.
        Pointer<IThreadPool> single = System::Threading::ThreadPool::New(1);
        std::atomic<int> inner{0};
        single
            ->Queue(Task([&](CTask&) {
                Pointer<IThreadPoolJob> later = single->Queue(Task([&](CTask&) { ++inner; }));
                later->Wait();
                single->Queue(Task([&](CTask&) { ++inner; }));
                single->WaitAll();
            }))
            ->Wait();
        EXPECT_EQ(inner, 2);

        // Two tasks in WaitAll at once wait for each other's pool only.
        Pointer<IThreadPool> pair = System::Threading::ThreadPool::New(2);
        std::atomic<int> arrived{0};
        for (int i = 0; i < 2; ++i)
            pair->Queue(Task([&](CTask&) {
                ++arrived;
                while (arrived < 2)
                    std::this_thread::sleep_for(1ms);
                pair->WaitAll();
            }));
        pair->WaitAll();

        // An operator large enough to be banded, called from a pool thread,
        // runs on that thread instead of queueing behind itself.
        Globals::SetProcessingThreadPool(single);
        ImageRef input = SampleImage(System::ntUInt8, {600, 600}, Geometry::Axes::aXY, {});
        ImageRef output = Images::Image::New();
        single->Queue(Task([&](CTask&) { Images::Segmentation::Functions::Threshold(input, output, 1.0); }))
            ->Wait();
        EXPECT_EQ(SamplesOf(output), std::vector<double>(600 * 600, 0.0));
    });
}

// A pool of another library, seen through its interface only: each task on
// a thread of its own, started late, as a busy pool would.
class CForeignPool : public System::Template::ObjectImpl<CForeignPool, IThreadPool> {
public:
    ~CForeignPool() override { WaitAll(); }
    Pointer<IThreadPoolJob> Queue(Pointer<IThreadPoolTask> task) override
    {
        ++queued;
        std::lock_guard lock(m_mutex);
        m_threads.emplace_back([task] {
            std::this_thread::sleep_for(2ms);
            task->Execute();
        });
        return {};
    }
    std::int64_t ThreadCount() override { return 2; }
    void WaitAll() override
    {
        std::vector<std::thread> threads;
        {
            std::lock_guard lock(m_mutex);
            threads.swap(m_threads);
        }
        for (std::thread& thread : threads)
            thread.join();
    }
    void CancelAll() override {}
    std::int64_t PendingCount() override { return 0; }
    std::atomic<int> queued{0};

private:
    std::mutex m_mutex;
    std::vector<std::thread> m_threads;
};

TEST(ThreadPoolImplementation, OperatorsShareTheirWorkWithAnyProcessingPool)
{
    InChildProcess([] {
        StartBasic();
        // Large enough to be shared out; every sample is set, whichever
        // thread did its band.
        ImageRef input = SampleImage(System::ntUInt8, {1001, 700}, Geometry::Axes::aXY, {});
        std::vector<double> ones(1001 * 700, 255.0);
        auto* foreign = new CForeignPool;
        Pointer<IThreadPool, 0> pool(foreign);
        for (const Pointer<IThreadPool, 0>& processing :
             {Pointer<IThreadPool, 0>(System::Threading::ThreadPool::New(2)), pool,
              Pointer<IThreadPool, 0>()}) {
            if (processing)
                Globals::SetProcessingThreadPool(processing);
            else
                Globals::ClearProcessingThreadPool();
            for (int round = 0; round < 20; ++round) {
                ImageRef output = Images::Image::New();
                Images::Segmentation::Functions::Threshold(input, output, 0.0);
                ASSERT_EQ(SamplesOf(output), ones);
            }
        }
        foreign->WaitAll();
        EXPECT_GT(foreign->queued, 0);
    });
}

TEST(ThreadPoolImplementation, ReleasingThePoolWhileTasksEndDoesNotHang)
{
    InChildProcess([] {
        StartBasic();
        // The pool is destroyed under the general critical section, and the
        // task released by its thread as it ends is destroyed under the same
        // section: the destruction must not hold it while it joins.
        for (int round = 0; round < 5; ++round) {
            Pointer<IThreadPool, 0> pool = System::Threading::ThreadPool::New(2);
            pool->Queue(Task([](CTask&) { std::this_thread::sleep_for(20ms); }));
            pool->Queue(Task([](CTask&) { std::this_thread::sleep_for(5ms); }));
            std::this_thread::sleep_for(2ms);
            pool = nullptr;
        }

        // The last reference to a pool held by its own task.
        std::atomic<bool> finished{false};
        {
            Pointer<IThreadPool> pool = System::Threading::ThreadPool::New(1);
            auto* holder = new CTask([&finished, held = Pointer<IThreadPool, 0>(pool)](CTask&) mutable {
                std::this_thread::sleep_for(10ms);
                held = nullptr;
                finished = true;
            });
            pool->Queue(Pointer<IThreadPoolTask>(holder));
        }
        while (!finished)
            std::this_thread::sleep_for(1ms);
    });
}

} // namespace Quilon_::Tests::ThreadPoolImplementation
