// Memory pressure: how the toolkit tells a host with a garbage collector how
// much native memory its objects hold.
//
// Blocks report what they take and give back; the counters pass the change
// on to the host's manager in steps of at least half a mebibyte, so that small
// blocks cost the host nothing:
//
//   Library::SetMemoryManager(hostManager);
//   System::AddMemoryPressure(bitmapBytes);      // when the bits are allocated
//   System::RemoveMemoryPressure(bitmapBytes);   // when they are freed
//
// After Library::Initialize every allocation of the companion library reports
// here too.
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>

namespace Quilon_::System {

// Supplied by the host.
class QUILON_API IMemoryManager : public virtual Interface {
    QUILON_INTERFACE(IMemoryManager)
public:
    virtual void AddMemoryPressure(std::uint64_t bytes) = 0;
    virtual void RemoveMemoryPressure(std::uint64_t bytes) = 0;
    virtual void ForceGarbageCollection() = 0;
};

// Count `bytes` as held, or as given back. The manager of
// Library::MemoryManager() is told once the change not yet passed on reaches
// 0x80000 bytes either way; a change made while no manager is set is dropped
// at that point.
QUILON_API void AddMemoryPressure(std::uint64_t bytes);
QUILON_API void RemoveMemoryPressure(std::uint64_t bytes);
// Asks the manager, if one is set, to collect now.
QUILON_API void ForceGarbageCollection();

// What AddMemoryPressure counted less what RemoveMemoryPressure did, whether
// or not a manager is set. Exported under this plain name.
extern "C" QUILON_API std::uint64_t AllocatedMemorySize();

} // namespace Quilon_::System
