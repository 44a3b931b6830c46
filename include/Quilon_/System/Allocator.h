// Allocation of the toolkit's objects and buffers.
//
// All heap memory of the toolkit comes from Quilon_malloc in the companion
// library, so that libraries built against different runtimes can free each
// other's blocks. Allocate adds the one failure path every allocation
// shares: the pre-built out-of-memory exception, reported and thrown.
//
//   static void* operator new(std::size_t size) { return Allocator::Allocate(size); }
//   static void operator delete(void* block) noexcept { Allocator::Free(block); }
//
//   char* bytes = UnsafeArrayAllocator<char>::New(size);   // null for 0
//   UnsafeArrayAllocator<char>::Delete(bytes);             // bytes is null again
#pragma once

#include "Quilon_/Config.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Quilon_::System {

namespace Allocator {
// Never returns null: when memory is exhausted it reports
// Exception::OutOfMemory() to the error manager and throws it.
QUILON_API void* Allocate(std::size_t size);
QUILON_API void Free(void* block) noexcept;
} // namespace Allocator

template <class T>
class UnsafeArrayAllocator;

// Raw byte buffers.
template <>
class QUILON_API UnsafeArrayAllocator<char> {
public:
    // `size` bytes; null, without allocating, for 0. Raises "Memory
    // allocation failed (%1% bytes requested)" when the block cannot be had.
    static char* New(std::uint64_t size);
    // Frees a block of New and nulls the pointer; null is ignored.
    static void Delete(char*& block) noexcept;
};

// Hooks of a build that traces every block. This build traces nothing: each
// returns at once, and they exist so that callers need no build switch.
QUILON_API void DisableMemoryTrace();
QUILON_API void DumpMemoryBlocks();
QUILON_API void DumpMemoryBlocks(const std::string& fileName);
QUILON_API void DumpMemoryBlockCounts();
QUILON_API void ClearMemoryBlocks();

} // namespace Quilon_::System
