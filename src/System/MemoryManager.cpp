#include "Quilon_/System/MemoryManager.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Type.h"

#include <atomic>
#include <mutex>
#include <new>

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IMemoryManager, L"Quilon_::System::IMemoryManager", Interface)

namespace {

constexpr std::int64_t PressureStep = 0x80000;

// Every allocation of the library passes here: the count is one atomic
// addition, and the section is taken only when the change since the last
// batch crosses a step and the manager is to be told.
struct PressureCounters {
    std::atomic<std::uint64_t> allocatedMemorySize{0};
    // The count when the last batch was taken: what is not yet passed on to
    // the manager is the difference. Written under the section.
    std::atomic<std::uint64_t> batchStart{0};
    // Passed on to the manager, in total; changed under the section.
    std::uint64_t reportedPressure = 0;
};

constinit PressureCounters counters;

// Recursive because the manager is called with the section held, and a
// manager that allocates comes back here through Quilon_malloc on the same
// thread. Never destroyed: allocations report here until the process ends.
std::recursive_mutex& MemorySection()
{
    alignas(std::recursive_mutex) static unsigned char storage[sizeof(std::recursive_mutex)];
    static std::recursive_mutex* const section = new (storage) std::recursive_mutex;
    return *section;
}

// The change not yet passed on when the count is `allocated`.
std::int64_t PendingAt(std::uint64_t allocated)
{
    return static_cast<std::int64_t>(allocated - counters.batchStart.load(std::memory_order_relaxed));
}

bool AddsAStep(std::int64_t pending)
{
    return pending >= PressureStep;
}

bool RemovesAStep(std::int64_t pending)
{
    return pending <= -PressureStep;
}

// Under the section: the pending change, which is cleared before the
// manager hears of it, so that what the manager allocates meanwhile starts
// a new batch; 0 when another thread took the batch in the meantime.
std::int64_t TakePending(bool (*crossed)(std::int64_t))
{
    const std::uint64_t allocated = counters.allocatedMemorySize.load(std::memory_order_relaxed);
    const std::int64_t pending = PendingAt(allocated);
    if (!crossed(pending))
        return 0;
    counters.batchStart.store(allocated, std::memory_order_relaxed);
    return pending;
}

} // namespace

void AddMemoryPressure(std::uint64_t bytes)
{
    const std::uint64_t allocated =
        counters.allocatedMemorySize.fetch_add(bytes, std::memory_order_relaxed) + bytes;
    if (!AddsAStep(PendingAt(allocated)))
        return;
    std::lock_guard<std::recursive_mutex> lock(MemorySection());
    const std::int64_t pending = TakePending(&AddsAStep);
    if (pending == 0)
        return;
    if (Pointer<IMemoryManager, 0> manager = Library::MemoryManager()) {
        manager->AddMemoryPressure(static_cast<std::uint64_t>(pending));
        counters.reportedPressure += static_cast<std::uint64_t>(pending);
    }
}

void RemoveMemoryPressure(std::uint64_t bytes)
{
    const std::uint64_t allocated =
        counters.allocatedMemorySize.fetch_sub(bytes, std::memory_order_relaxed) - bytes;
    if (!RemovesAStep(PendingAt(allocated)))
        return;
    std::lock_guard<std::recursive_mutex> lock(MemorySection());
    const std::int64_t pending = TakePending(&RemovesAStep);
    if (pending == 0)
        return;
    if (Pointer<IMemoryManager, 0> manager = Library::MemoryManager()) {
        manager->RemoveMemoryPressure(static_cast<std::uint64_t>(-pending));
        counters.reportedPressure -= static_cast<std::uint64_t>(-pending);
    }
}

void ForceGarbageCollection()
{
    if (Pointer<IMemoryManager, 0> manager = Library::MemoryManager())
        manager->ForceGarbageCollection();
}

extern "C" std::uint64_t AllocatedMemorySize()
{
    return counters.allocatedMemorySize.load(std::memory_order_relaxed);
}

} // namespace Quilon_::System
