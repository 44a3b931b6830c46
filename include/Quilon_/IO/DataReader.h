// A reader of raw data: the bytes of a file or of a block of memory, read
// piece by piece, for formats whose reader parses them itself.
//
//   Ref<IO::IDataReader> data = ...;
//   data->Open(L"table.csv");
//   std::vector<std::uint8_t> block(4096);
//   std::int64_t got = data->Read(block.data(), std::int64_t(block.size()));
//   data->Close();
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {
class IMemory;
} // namespace Quilon_::System

namespace Quilon_::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IDataReader : public virtual System::Interface {
    QUILON_INTERFACE(IDataReader)
public:
    // 1. Opens the file; raises, naming it, when it cannot be opened.
    virtual void Open(const std::wstring& fileName) = 0;
    // 2. Reads from `bytes` instead; `name` stands for it in messages.
    virtual void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) = 0;
    // 3. Forgets the open data; does nothing when none is open.
    virtual void Close() = 0;
    // 4. Whether data is open.
    virtual bool IsOpen() = 0;
    // 5. The name given to Open or OpenMemory.
    virtual std::wstring Name() = 0;
    // 6. The number of bytes of the open data.
    virtual std::int64_t Size() = 0;
    // 7. Where the next Read starts, from 0.
    virtual std::int64_t Position() = 0;
    // 8. Copies up to `count` bytes to `buffer` and moves on; returns how
    // many it copied, 0 at the end.
    virtual std::int64_t Read(void* buffer, std::int64_t count) = 0;
};

} // namespace Quilon_::IO
