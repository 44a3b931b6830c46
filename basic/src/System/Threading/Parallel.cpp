#include "System/Threading/Parallel.h"

#include "System/Threading/ThreadPool.h"

#include <algorithm>

namespace Quilon_::Basic::Threading {

using System::Pointer;
using System::Threading::IThreadPool;
using System::Threading::IThreadPoolTask;

namespace {

// More chunks than threads, so that a thread that starts late or is held up
// by other work on the machine leaves its share to the others; not so many
// that the per-chunk cost of a body (margins, buffers) shows.
constexpr std::int64_t ChunksPerThread = 4;
constexpr std::int64_t MinimumChunkWork = MinimumParallelWork / 4;

// ParallelBands on a pool of another library, through its interface. The
// helpers are tasks that may begin long after the caller has done all the
// chunks itself (a busy pool, or the caller being one of its threads): a
// helper that begins after the caller closed the offer does nothing, and the
// caller waits only for helpers that began before, so it never waits for the
// pool's queue.
struct ForeignBandOffer {
    explicit ForeignBandOffer(Detail::BandBody body, std::int64_t count, std::int64_t chunks)
        : job(body, count, chunks)
    {
    }
    BandJob job;
    std::mutex mutex;
    std::condition_variable left;
    std::int64_t helpers = 0;
    bool closed = false;
};

class CForeignBandTask : public System::Template::ObjectImpl<CForeignBandTask, IThreadPoolTask> {
public:
    explicit CForeignBandTask(std::shared_ptr<ForeignBandOffer> offer) : m_offer(std::move(offer)) {}

    void Execute() override
    {
        ForeignBandOffer& offer = *m_offer;
        {
            std::lock_guard lock(offer.mutex);
            if (offer.closed)
                return;
            ++offer.helpers;
        }
        offer.job.Work();
        std::lock_guard lock(offer.mutex);
        if (--offer.helpers == 0)
            offer.left.notify_all();
    }
    void Cancel() override {}

private:
    std::shared_ptr<ForeignBandOffer> m_offer;
};

void RunForeignBands(IThreadPool& pool, Detail::BandBody body, std::int64_t count, std::int64_t chunks,
                     std::int64_t helpers)
{
    auto offer = std::make_shared<ForeignBandOffer>(body, count, chunks);
    // Helpers only speed the work up: a pool that refuses one leaves its
    // chunks to the caller.
    try {
        for (std::int64_t helper = 0; helper < helpers; ++helper)
            pool.Queue(Pointer<IThreadPoolTask>(new CForeignBandTask(offer)));
    } catch (...) {
    }
    offer->job.Work();
    {
        std::unique_lock lock(offer->mutex);
        offer->closed = true;
        offer->left.wait(lock, [&offer] { return offer->helpers == 0; });
    }
    offer->job.RaiseFailure();
}

} // namespace

namespace Detail {

void RunBands(std::int64_t count, std::int64_t costPerItem, BandBody body)
{
    const Pointer<IThreadPool, 0> pool =
        IsPoolThread() ? Pointer<IThreadPool, 0>()
                       : Pointer<IThreadPool, 0>(System::Threading::Globals::ProcessingThreadPool());
    const std::int64_t work = count * costPerItem;
    const std::int64_t threads =
        pool ? std::min({pool->ThreadCount(), count, std::max<std::int64_t>(1, work / MinimumParallelWork)})
             : 1;
    if (threads <= 1) {
        body.run(body.body, 0, count);
        return;
    }
    const std::int64_t chunks =
        std::min({count, threads * ChunksPerThread, std::max(threads, work / MinimumChunkWork)});
    if (auto* own = dynamic_cast<CThreadPool*>(pool.Get())) {
        BandJob job(body, count, chunks);
        own->State().RunBands(job, threads - 1);
        return;
    }
    RunForeignBands(*pool, body, count, chunks, threads - 1);
}

} // namespace Detail

} // namespace Quilon_::Basic::Threading
