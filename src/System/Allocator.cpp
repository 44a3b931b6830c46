#include "Quilon_/System/Allocator.h"

#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Raise.h"

#include <limits>

namespace Quilon_::System {

void* Allocator::Allocate(std::size_t size)
{
    if (void* block = Quilon_malloc(size))
        return block;
    // Nothing is built here: the exception was made while memory was there.
    Pointer<IException, 1> outOfMemory = Exception::OutOfMemory();
    Library::ErrorManager()->SetLastError(outOfMemory);
    throw outOfMemory;
}

void Allocator::Free(void* block) noexcept
{
    Quilon_free(block);
}

char* UnsafeArrayAllocator<char>::New(std::uint64_t size)
{
    if (size == 0)
        return nullptr;
    void* block = size <= std::numeric_limits<std::size_t>::max() ? Quilon_malloc(static_cast<std::size_t>(size))
                                                                   : nullptr;
    if (!block)
        QUILON_RAISE(L"Memory allocation failed (%1% bytes requested)", size);
    return static_cast<char*>(block);
}

void UnsafeArrayAllocator<char>::Delete(char*& block) noexcept
{
    Quilon_free(block);
    block = nullptr;
}

void DisableMemoryTrace() {}

void DumpMemoryBlocks() {}

void DumpMemoryBlocks(const std::string&) {}

void DumpMemoryBlockCounts() {}

void ClearMemoryBlocks() {}

} // namespace Quilon_::System
