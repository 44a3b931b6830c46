// Thread pools, as interfaces: the pools themselves are made by the library
// that registers an implementation on ThreadPool::New. Two pools are known
// by name, as process-wide settings: the one that runs image conversions and
// the one that runs processing.
//
//   Pointer<Threading::IThreadPool> pool = Threading::ThreadPool::New(4);
//   Threading::Globals::SetProcessingThreadPool(pool);
//   Pointer<Threading::IThreadPoolJob> job = pool->Queue(task);
//   job->Wait();
//
// A getter whose pool was never set returns an empty reference; using it
// raises "Pointer <%1%> : attempt to access a 0 pointer".
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/GlobalVariable.h"

#include <cstdint>

namespace Quilon_::System::Threading {

// A piece of work for a pool.
class QUILON_API IThreadPoolTask : public virtual Interface {
    QUILON_INTERFACE(IThreadPoolTask)
public:
    // Does the work, on a thread of the pool.
    virtual void Execute() = 0;
    // Asks the task to end early; may come from any thread, also before
    // Execute has begun.
    virtual void Cancel() = 0;
};

// A task as queued in a pool.
class QUILON_API IThreadPoolJob : public virtual Interface {
    QUILON_INTERFACE(IThreadPoolJob)
public:
    // Blocks until the task has ended; raises what the task raised.
    virtual void Wait() = 0;
    virtual bool IsFinished() = 0;
};

class QUILON_API IThreadPool : public virtual Interface {
    QUILON_INTERFACE(IThreadPool)
public:
    virtual Pointer<IThreadPoolJob> Queue(Pointer<IThreadPoolTask> task) = 0;
    virtual std::int64_t ThreadCount() = 0;
    // Blocks until every queued task has ended.
    virtual void WaitAll() = 0;
    // Cancels the running tasks and drops those that have not begun.
    virtual void CancelAll() = 0;
    // The number of tasks queued and not yet begun.
    virtual std::int64_t PendingCount() = 0;
};

namespace ThreadPool {
// Makes a pool with the given number of threads.
extern QUILON_API Functions::Template::Function<Pointer<IThreadPool> (*)(std::int64_t threadCount)> New;
} // namespace ThreadPool

namespace Globals {
// Process-wide: a pool is shared by all threads, never copied per thread.
QUILON_DECLARE_SETTING(ConversionThreadPool, SetConversionThreadPool, ClearConversionThreadPool,
                       Pointer<IThreadPool>);
QUILON_DECLARE_SETTING(ProcessingThreadPool, SetProcessingThreadPool, ClearProcessingThreadPool,
                       Pointer<IThreadPool>);
} // namespace Globals

} // namespace Quilon_::System::Threading
