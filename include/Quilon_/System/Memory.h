// Blocks of bytes shared between libraries: the buffers of readers, writers
// and bitmaps.
//
// The blocks themselves are made by another library, which registers its
// implementations on the two overloads of Memory::New during start-up:
//
//   Pointer<IMemory> block = Memory::New(std::int64_t(4096), true);   // allocated and cleared
//   Pointer<IMemory> view = Memory::New(bytes, std::int64_t(size));   // around existing bytes
//
//   // in the library that makes them
//   Memory::New.Allocating.Register(L"Heap block", &NewHeapBlock);
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <cstdint>

namespace Quilon_::System {

class QUILON_API IMemory : public virtual Interface {
    QUILON_INTERFACE(IMemory)
public:
    // The first byte; null for an empty block.
    virtual void* Data() = 0;
    virtual std::int64_t Size() = 0;
    // False for a block around bytes that somebody else frees.
    virtual bool OwnsData() = 0;
    // Changes the size of a block that owns its bytes, keeping the leading
    // ones; Data() may move.
    virtual void Resize(std::int64_t size) = 0;
    // Sets every byte to `value`.
    virtual void Fill(unsigned char value) = 0;
    // Copies `count` bytes from `source` to the block, starting at `offset`.
    virtual void CopyFrom(const void* source, std::int64_t count, std::int64_t offset) = 0;
};

namespace Memory {

// The factory of blocks: two operators, both named "New", one per overload.
class QUILON_API Factory {
public:
    Factory();

    // A block of `size` bytes that it allocates; with `zeroed` they are 0.
    Pointer<IMemory, 1> operator()(std::int64_t size, bool zeroed) const { return Allocating(size, zeroed); }
    // A block around `size` bytes at `data`, which stay the caller's.
    Pointer<IMemory, 1> operator()(void* data, std::int64_t size) const { return Wrapping(data, size); }

    Functions::Template::Function<Pointer<IMemory, 1> (*)(std::int64_t, bool)> Allocating;
    Functions::Template::Function<Pointer<IMemory, 1> (*)(void*, std::int64_t)> Wrapping;
};

extern QUILON_API Factory New;

} // namespace Memory

} // namespace Quilon_::System
