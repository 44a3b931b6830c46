#include "System/Threading/ThreadPool.h"

#include "System/SettingsLifetime.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Threading/GeneralCriticalSection.h"

#include <algorithm>
#include <chrono>

namespace Quilon_::Basic::Threading {

using System::Pointer;
using System::Threading::IThreadPool;
using System::Threading::IThreadPoolJob;
using System::Threading::IThreadPoolTask;

namespace {

// The pool whose thread this is, if any.
thread_local const PoolState* t_poolOfThread = nullptr;

// Lets go of the general critical section for a scope, if this thread holds
// it, however deep, and takes it back as deep afterwards. A pool is
// destroyed under that section (the deletion sequence holds it) and must
// wait for its threads; a task that ends meanwhile releases objects, whose
// deletion takes the same section. The pool is no longer reachable by then,
// so letting others delete and fire events while it waits is safe.
class GeneralSectionSuspension {
public:
    GeneralSectionSuspension()
    {
        System::Detail::GeneralSection& section = System::Detail::g_generalSection;
        if (section.owner.load(std::memory_order_relaxed) != System::Detail::CurrentThreadTag())
            return;
        m_depth = section.depth;
        section.depth = 1;
        System::Detail::LeaveGeneralSection();
    }
    ~GeneralSectionSuspension()
    {
        if (m_depth == 0)
            return;
        System::Detail::EnterGeneralSection();
        System::Detail::g_generalSection.depth = m_depth;
    }
    GeneralSectionSuspension(const GeneralSectionSuspension&) = delete;
    GeneralSectionSuspension& operator=(const GeneralSectionSuspension&) = delete;

private:
    unsigned m_depth = 0;
};

} // namespace

// A task as queued: pending, then running, then finished. A task dropped by
// CancelAll or by the end of the pool counts as finished, without failure.
class CThreadPoolJob : public System::Template::ObjectImpl<CThreadPoolJob, IThreadPoolJob> {
public:
    CThreadPoolJob(std::shared_ptr<PoolState> pool, Pointer<IThreadPoolTask> task)
        : m_pool(std::move(pool)), m_task(std::move(task))
    {
    }

    void Wait() override
    {
        PoolState& pool = *m_pool;
        std::unique_lock lock(pool.mutex);
        // A thread of the pool that waits for a job still in the queue runs it
        // itself: otherwise tasks that wait for tasks queued after them would
        // block every thread of a small pool.
        if (m_state == Pending && pool.IsOwnThread()) {
            auto queued =
                std::find_if(pool.pending.begin(), pool.pending.end(),
                             [this](const PoolState::QueuedJob& entry) { return entry.job == this; });
            if (queued != pool.pending.end()) {
                PoolState::QueuedJob mine = std::move(*queued);
                pool.pending.erase(queued);
                pool.Execute(std::move(mine), lock);
            }
        }
        pool.jobDone.wait(lock, [this] { return m_state == Finished; });
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

    bool IsFinished() override
    {
        std::lock_guard lock(m_pool->mutex);
        return m_state == Finished;
    }

    // Under the pool's lock.
    enum State { Pending, Running, Finished };
    State m_state = Pending;
    std::exception_ptr m_failure;
    const Pointer<IThreadPoolTask>& Task() const { return m_task; }

private:
    std::shared_ptr<PoolState> m_pool;
    const Pointer<IThreadPoolTask> m_task;
};

void BandJob::Work() noexcept
{
    for (;;) {
        const std::int64_t chunk = m_next.fetch_add(1, std::memory_order_relaxed);
        if (chunk >= m_chunks)
            return;
        try {
            m_body.run(m_body.body, chunk * m_count / m_chunks, (chunk + 1) * m_count / m_chunks);
        } catch (...) {
            if (!m_failed.exchange(true, std::memory_order_acq_rel))
                m_failure = std::current_exception();
            m_next.store(m_chunks, std::memory_order_relaxed);
            return;
        }
    }
}

void BandJob::RaiseFailure() const
{
    if (m_failure)
        std::rethrow_exception(m_failure);
}

bool PoolState::IsOwnThread() const
{
    return t_poolOfThread == this;
}

void PoolState::Execute(QueuedJob queued, std::unique_lock<std::mutex>& lock)
{
    CThreadPoolJob& job = *queued.job;
    job.m_state = CThreadPoolJob::Running;
    running.push_back(queued);
    lock.unlock();
    std::exception_ptr failure;
    try {
        job.Task()->Execute();
    } catch (...) {
        failure = std::current_exception();
    }
    lock.lock();
    job.m_failure = failure;
    job.m_state = CThreadPoolJob::Finished;
    running.erase(std::find_if(running.begin(), running.end(),
                               [&job](const QueuedJob& entry) { return entry.job == &job; }));
    jobDone.notify_all();
    // The last reference may go here, so outside the lock (see `mutex`).
    lock.unlock();
    queued.hold = nullptr;
    lock.lock();
}

void PoolState::RunBands(BandJob& job, std::int64_t helpers)
{
    {
        std::lock_guard lock(mutex);
        bands.push_back(BandOffer{&job, helpers});
        bandOffersMade.fetch_add(1, std::memory_order_relaxed);
    }
    if (helpers == 1)
        work.notify_one();
    else
        work.notify_all();
    job.Work();
    std::unique_lock lock(mutex);
    // Offers not taken by now are withdrawn: this thread has done the rest.
    std::erase_if(bands, [&job](const BandOffer& offer) { return offer.job == &job; });
    bandDone.wait(lock, [&job] { return job.helpers == 0; });
    lock.unlock();
    job.RaiseFailure();
}

namespace {

// Operators come in runs, each a few microseconds after the last: a thread
// that has just helped with bands watches for the next offer a little while
// before it sleeps, so that the next operator does not pay for waking it.
void WatchForBands(PoolState& pool, std::unique_lock<std::mutex>& lock)
{
    using Clock = std::chrono::steady_clock;
    const std::int64_t seen = pool.bandOffersMade.load(std::memory_order_relaxed);
    lock.unlock();
    const Clock::time_point until = Clock::now() + std::chrono::microseconds(50);
    while (pool.bandOffersMade.load(std::memory_order_relaxed) == seen && Clock::now() < until) {
        for (int pause = 0; pause < 16; ++pause) {
#if defined(__x86_64__) || defined(__i386__)
            __builtin_ia32_pause();
#endif
        }
    }
    lock.lock();
}

void RunPoolThread(std::shared_ptr<PoolState> state)
{
    PoolState& pool = *state;
    t_poolOfThread = &pool;
    std::unique_lock lock(pool.mutex);
    for (;;) {
        pool.work.wait(lock,
                       [&pool] { return pool.stopping || !pool.bands.empty() || !pool.pending.empty(); });
        if (!pool.bands.empty()) {
            PoolState::BandOffer& offer = pool.bands.front();
            BandJob& job = *offer.job;
            ++job.helpers;
            if (--offer.wanted == 0)
                pool.bands.erase(pool.bands.begin());
            lock.unlock();
            job.Work();
            lock.lock();
            if (--job.helpers == 0)
                pool.bandDone.notify_all();
            if (pool.bands.empty() && pool.pending.empty() && !pool.stopping)
                WatchForBands(pool, lock);
            continue;
        }
        if (!pool.pending.empty()) {
            PoolState::QueuedJob next = std::move(pool.pending.front());
            pool.pending.pop_front();
            pool.Execute(std::move(next), lock);
            continue;
        }
        return;
    }
}

} // namespace

CThreadPool::CThreadPool(std::int64_t threadCount) : m_state(std::make_shared<PoolState>())
{
    m_threads.reserve(static_cast<std::size_t>(threadCount));
    for (std::int64_t index = 0; index < threadCount; ++index)
        m_threads.emplace_back(&RunPoolThread, m_state);
}

// Tasks that have begun end as they would; those still queued are dropped.
CThreadPool::~CThreadPool()
{
    std::deque<PoolState::QueuedJob> dropped;
    {
        std::lock_guard lock(m_state->mutex);
        m_state->stopping = true;
        dropped.swap(m_state->pending);
        for (PoolState::QueuedJob& entry : dropped)
            entry.job->m_state = CThreadPoolJob::Finished;
    }
    m_state->work.notify_all();
    m_state->jobDone.notify_all();
    dropped.clear();
    GeneralSectionSuspension unlocked;
    for (std::thread& thread : m_threads) {
        // Released by its own task: that thread leaves when the task returns,
        // holding the shared state until then.
        if (thread.get_id() == std::this_thread::get_id())
            thread.detach();
        else
            thread.join();
    }
}

Pointer<IThreadPoolJob> CThreadPool::Queue(Pointer<IThreadPoolTask> task)
{
    // A missing task fails here, on the caller, with the message of a 0 pointer.
    task.operator->();
    auto* job = new CThreadPoolJob(m_state, std::move(task));
    Pointer<IThreadPoolJob> result(job);
    {
        std::lock_guard lock(m_state->mutex);
        m_state->pending.push_back(PoolState::QueuedJob{result, job});
    }
    m_state->work.notify_one();
    return result;
}

std::int64_t CThreadPool::ThreadCount()
{
    return static_cast<std::int64_t>(m_threads.size());
}

// From a thread of the pool, the tasks still queued are run here, and the
// tasks that are themselves in WaitAll are not waited for: they wait for
// this one.
void CThreadPool::WaitAll()
{
    PoolState& pool = *m_state;
    const bool own = pool.IsOwnThread();
    std::unique_lock lock(pool.mutex);
    if (own) {
        ++pool.threadsInWaitAll;
        while (!pool.pending.empty()) {
            PoolState::QueuedJob next = std::move(pool.pending.front());
            pool.pending.pop_front();
            pool.Execute(std::move(next), lock);
        }
        pool.jobDone.notify_all();
    }
    pool.jobDone.wait(lock, [&pool, own] {
        const auto busy = static_cast<std::int64_t>(pool.running.size());
        return pool.pending.empty() && busy <= (own ? pool.threadsInWaitAll : 0);
    });
    if (own) {
        --pool.threadsInWaitAll;
        pool.jobDone.notify_all();
    }
}

void CThreadPool::CancelAll()
{
    std::deque<PoolState::QueuedJob> dropped;
    std::vector<PoolState::QueuedJob> running;
    {
        std::lock_guard lock(m_state->mutex);
        dropped.swap(m_state->pending);
        for (PoolState::QueuedJob& entry : dropped)
            entry.job->m_state = CThreadPoolJob::Finished;
        running = m_state->running;
    }
    m_state->jobDone.notify_all();
    for (PoolState::QueuedJob& entry : running)
        entry.job->Task()->Cancel();
}

std::int64_t CThreadPool::PendingCount()
{
    std::lock_guard lock(m_state->mutex);
    return static_cast<std::int64_t>(m_state->pending.size());
}

bool IsPoolThread()
{
    return t_poolOfThread != nullptr;
}

namespace {

Pointer<IThreadPool> NewThreadPool(std::int64_t threadCount)
{
    if (threadCount < 1)
        QUILON_RAISE(L"A thread pool needs at least one thread, not %1%", threadCount);
    return Pointer<IThreadPool>(new CThreadPool(threadCount));
}

void RegisterThreadPool()
{
    System::Threading::ThreadPool::New.Register(L"Thread pool", &NewThreadPool);
}

const System::Template::Initializer<::Library> threadPoolClass(&RegisterThreadPool, nullptr, 0.2f);

// One pool of one thread per processor serves processing and conversion
// alike: two pools would keep twice the threads for work that never runs at
// the same time on a machine with that many processors.
void StartThreadPools()
{
    namespace Globals = System::Threading::Globals;
    Pointer<IThreadPool> shared = Globals::ProcessingThreadPool();
    if (!shared) {
        shared = NewThreadPool(std::max<std::int64_t>(1, std::thread::hardware_concurrency()));
        Globals::SetProcessingThreadPool(shared);
    }
    if (!Globals::ConversionThreadPool())
        Globals::SetConversionThreadPool(shared);
}

// The threads are joined here, while the library can still run what a task
// releases on its way out.
void StopThreadPools()
{
    System::Threading::Globals::ClearConversionThreadPool();
    System::Threading::Globals::ClearProcessingThreadPool();
}

const SettingsLifetime threadPools(&StartThreadPools, &StopThreadPools, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Threading
