// Blocks of memory for Memory::New: blocks of the toolkit's heap, and views
// of bytes that somebody else owns.
#include "Quilon_/System/Memory.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cstring>

namespace Quilon_::Basic {

using namespace Quilon_::System;

namespace {

// What both kinds of block share: the bytes and their number.
template <class Derived>
class CMemoryBase : public Template::ObjectImpl<Derived, IMemory> {
public:
    void* Data() override { return m_data; }
    std::int64_t Size() override { return m_size; }
    void Fill(unsigned char value) override
    {
        // An empty block may have no address at all.
        if (m_size > 0)
            std::memset(m_data, value, static_cast<std::size_t>(m_size));
    }
    void CopyFrom(const void* source, std::int64_t count, std::int64_t offset) override
    {
        if (offset < 0 || count < 0 || offset + count > m_size)
            QUILON_RAISE(L"Copy of %1% bytes at %2% does not fit a block of %3%", count, offset, m_size);
        // An empty block has no bytes at all, not even an address to copy to.
        if (count == 0)
            return;
        std::memcpy(static_cast<char*>(m_data) + offset, source, static_cast<std::size_t>(count));
    }

protected:
    void* m_data = nullptr;
    std::int64_t m_size = 0;
};

class CHeapMemory : public CMemoryBase<CHeapMemory> {
public:
    CHeapMemory(std::int64_t size, bool zeroed)
    {
        Resize(size);
        if (zeroed)
            Fill(0);
    }
    ~CHeapMemory() override { Quilon_free(m_data); }

    bool OwnsData() override { return true; }
    void Resize(std::int64_t size) override
    {
        if (size < 0)
            QUILON_RAISE(L"Invalid block size: %1%", size);
        void* data = size == 0 ? nullptr : Quilon_malloc(static_cast<std::size_t>(size));
        if (size != 0 && !data)
            QUILON_RAISE(L"Memory allocation failed (%1% bytes requested)", size);
        if (data && m_data)
            std::memcpy(data, m_data, static_cast<std::size_t>(std::min(size, m_size)));
        Quilon_free(m_data);
        m_data = data;
        m_size = size;
    }
};

class CWrappedMemory : public CMemoryBase<CWrappedMemory> {
public:
    CWrappedMemory(void* data, std::int64_t size)
    {
        if (size < 0 || (!data && size != 0))
            QUILON_RAISE(L"Invalid block size: %1%", size);
        m_data = data;
        m_size = size;
    }

    bool OwnsData() override { return false; }
    void Resize(std::int64_t size) override
    {
        if (size != m_size)
            QUILON_RAISE(L"A block around bytes it does not own cannot be resized");
    }
};

Pointer<IMemory, 1> NewHeapMemory(std::int64_t size, bool zeroed)
{
    return Pointer<IMemory, 1>(new CHeapMemory(size, zeroed));
}

Pointer<IMemory, 1> NewWrappedMemory(void* data, std::int64_t size)
{
    return Pointer<IMemory, 1>(new CWrappedMemory(data, size));
}

void RegisterMemory()
{
    Memory::New.Allocating.Register(L"Heap memory", &NewHeapMemory);
    Memory::New.Wrapping.Register(L"Wrapped memory", &NewWrappedMemory);
}

const Template::Initializer<::Library> memory(&RegisterMemory, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
