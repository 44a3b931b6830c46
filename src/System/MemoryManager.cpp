#include "Quilon_/System/MemoryManager.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Type.h"

#include <mutex>
#include <new>

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IMemoryManager, L"Quilon_::System::IMemoryManager", Interface)

namespace {

constexpr std::int64_t PressureStep = 0x80000;

struct PressureCounters {
    std::uint64_t allocatedMemorySize = 0;
    // Not yet passed on to the manager.
    std::int64_t pendingPressure = 0;
    // Passed on to the manager, in total.
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

// The pending change, which is cleared before the manager hears of it, so
// that what the manager allocates meanwhile starts a new batch.
std::int64_t TakePending()
{
    std::int64_t pending = counters.pendingPressure;
    counters.pendingPressure = 0;
    return pending;
}

} // namespace

void AddMemoryPressure(std::uint64_t bytes)
{
    std::lock_guard<std::recursive_mutex> lock(MemorySection());
    counters.allocatedMemorySize += bytes;
    counters.pendingPressure += static_cast<std::int64_t>(bytes);
    if (counters.pendingPressure < PressureStep)
        return;
    const std::int64_t pending = TakePending();
    if (Pointer<IMemoryManager, 0> manager = Library::MemoryManager()) {
        manager->AddMemoryPressure(static_cast<std::uint64_t>(pending));
        counters.reportedPressure += static_cast<std::uint64_t>(pending);
    }
}

void RemoveMemoryPressure(std::uint64_t bytes)
{
    std::lock_guard<std::recursive_mutex> lock(MemorySection());
    counters.allocatedMemorySize -= bytes;
    counters.pendingPressure -= static_cast<std::int64_t>(bytes);
    if (counters.pendingPressure > -PressureStep)
        return;
    const std::int64_t pending = TakePending();
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
    std::lock_guard<std::recursive_mutex> lock(MemorySection());
    return counters.allocatedMemorySize;
}

} // namespace Quilon_::System
