// A plug-in as small as one can be: at start-up it fills an operator of its
// own and the core's factory of memory blocks, through its own ranked
// initialisers.
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cstring>

namespace Quilon_::Demo::Functions {

// Greets by name; the implementation registered last is tried first.
QUILON_API System::Functions::Template::Function<std::wstring (*)(const std::wstring&)> Greet(L"Greet");

} // namespace Quilon_::Demo::Functions

namespace {

using namespace Quilon_::System;

// A block of the library's heap.
class CHeapMemory : public Template::ObjectImpl<CHeapMemory, IMemory> {
public:
    CHeapMemory(std::int64_t size, bool zeroed)
    {
        Resize(size);
        if (zeroed)
            Fill(0);
    }
    ~CHeapMemory() override { Quilon_free(m_data); }

    void* Data() override { return m_data; }
    std::int64_t Size() override { return m_size; }
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
    void Fill(unsigned char value) override { std::memset(m_data, value, static_cast<std::size_t>(m_size)); }
    void CopyFrom(const void* source, std::int64_t count, std::int64_t offset) override
    {
        if (offset < 0 || count < 0 || offset + count > m_size)
            QUILON_RAISE(L"Copy of %1% bytes at %2% does not fit a block of %3%", count, offset, m_size);
        std::memcpy(static_cast<char*>(m_data) + offset, source, static_cast<std::size_t>(count));
    }

private:
    void* m_data = nullptr;
    std::int64_t m_size = 0;
};

Pointer<IMemory, 1> NewHeapMemory(std::int64_t size, bool zeroed)
{
    return Pointer<IMemory, 1>(new CHeapMemory(size, zeroed));
}

std::wstring Hello(const std::wstring& name)
{
    return L"Hello, " + name;
}

std::wstring Welcome(const std::wstring& name)
{
    if (name.empty())
        QUILON_RAISE(L"Nobody to welcome");
    return L"Welcome, " + name;
}

void RegisterMemory()
{
    Memory::New.Allocating.Register(L"Heap memory", &NewHeapMemory);
}

// The greeting that may fail comes last, so that the other stays as the
// fall-back.
void RegisterGreetings()
{
    Quilon_::Demo::Functions::Greet.Register(L"Hello", &Hello);
    Quilon_::Demo::Functions::Greet.Register(L"Welcome", &Welcome);
}

const Template::Initializer<::Library> memory(&RegisterMemory, nullptr, 0.2f);
const Template::Initializer<::Library> greetings(&RegisterGreetings, nullptr, 0.5f);

} // namespace
