// The reference library's thread pool: a fixed set of threads that run the
// tasks queued on it in order, and lend themselves to ParallelBands (see
// Parallel.h) ahead of queued tasks.
//
//   Pointer<IThreadPool> pool = System::Threading::ThreadPool::New(2);
//   Pointer<IThreadPoolJob> job = pool->Queue(task);
//   job->Wait();                                 // raises what the task raised
//
// Private to the library: others see the pool through IThreadPool only.
#pragma once

#include "System/Threading/Parallel.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/ThreadPool.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Quilon_::Basic::Threading {

class CThreadPoolJob;

// One call of ParallelBands: its chunks, taken in turn by whichever thread
// asks next, and the first failure among them.
class BandJob {
public:
    BandJob(Detail::BandBody body, std::int64_t count, std::int64_t chunks)
        : m_body(body), m_count(count), m_chunks(chunks)
    {
    }

    // Runs chunks until none are left; a failure ends the handing out.
    void Work() noexcept;
    // Raises the first failure of a chunk, if any.
    void RaiseFailure() const;

    // Pool threads working on it; under the pool's lock.
    std::int64_t helpers = 0;

private:
    Detail::BandBody m_body;
    std::int64_t m_count;
    std::int64_t m_chunks;
    std::atomic<std::int64_t> m_next{0};
    std::atomic<bool> m_failed{false};
    std::exception_ptr m_failure;
};

// What the pool object shares with its threads. The threads hold it too, so
// that a pool released by one of its own tasks stays whole until that
// thread has left it.
struct PoolState {
    // A band job with the number of helpers it still wants.
    struct BandOffer {
        BandJob* job;
        std::int64_t wanted;
    };
    struct QueuedJob {
        // Nullable: the reference is let go of early, outside the lock.
        System::Pointer<System::Threading::IThreadPoolJob, 0> hold;
        CThreadPoolJob* job;
    };

    // A leaf lock: nothing is released, executed or cancelled while it is
    // held, since releasing an object may take the general critical section,
    // which a thread that destroys the pool holds while it takes this lock.
    std::mutex mutex;
    // Workers sleep here until there is a band, a task or the end.
    std::condition_variable work;
    // Jobs that end, and threads that leave WaitAll, are announced here.
    std::condition_variable jobDone;
    // Helpers that leave a band job are announced here.
    std::condition_variable bandDone;
    std::deque<QueuedJob> pending;
    std::vector<BandOffer> bands;
    // Counts the band offers ever made; read without the lock by threads
    // that watch for the next one (see RunPoolThread).
    std::atomic<std::int64_t> bandOffersMade{0};
    std::vector<QueuedJob> running;
    std::int64_t threadsInWaitAll = 0;
    bool stopping = false;

    // Whether the calling thread is one of this pool's.
    bool IsOwnThread() const;
    // Runs a job that was taken out of `pending`, on this thread. Called and
    // returns with `lock` held; leaves it while the task runs.
    void Execute(QueuedJob queued, std::unique_lock<std::mutex>& lock);
    // ParallelBands on this pool: `helpers` threads are asked to join the
    // calling thread; returns when every chunk is done.
    void RunBands(BandJob& job, std::int64_t helpers);
};

class CThreadPool : public System::Template::ObjectImpl<CThreadPool, System::Threading::IThreadPool> {
public:
    explicit CThreadPool(std::int64_t threadCount);
    ~CThreadPool() override;

    System::Pointer<System::Threading::IThreadPoolJob>
    Queue(System::Pointer<System::Threading::IThreadPoolTask> task) override;
    std::int64_t ThreadCount() override;
    void WaitAll() override;
    void CancelAll() override;
    std::int64_t PendingCount() override;

    PoolState& State() { return *m_state; }

private:
    std::shared_ptr<PoolState> m_state;
    std::vector<std::thread> m_threads;
};

// Whether the calling thread belongs to a pool of this library.
bool IsPoolThread();

} // namespace Quilon_::Basic::Threading
