// The reading side of a binary archive, from a file or from memory.
//
//   Pointer<IReader, 1> reader = Reader::New(std::wstring(L"/tmp/values.bin"));
//   std::wstring name;
//   reader >> name >> values;
//
// Archives may come from anywhere: every count read from one is checked
// against the bytes that remain before anything is allocated for it.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/Serialization/Factory.h"

#include <cstdint>
#include <string>

namespace Quilon_::System::Serialization::Binary {

class QUILON_API IReader : public virtual System::Interface {
    QUILON_INTERFACE(IReader)
public:
    // The flags of the archive being read, from its header.
    virtual bool SaveIntAsInt64() = 0;
    virtual bool SaveStringAsAnsi() = 0;
    // Fills `data` with the next `size` bytes; raises when fewer remain.
    virtual void Read(void* data, std::int64_t size) = 0;
    virtual void Read(System::Any& value) = 0;
    // The next object; null when a null object was written.
    virtual void Read(System::Pointer<System::Interface, 0>& object, bool reserved) = 0;
    // The version in the archive's header.
    virtual unsigned short Version() = 0;
    // Bytes read so far, header included.
    virtual std::int64_t Position() = 0;
    // Bytes left to read.
    virtual std::int64_t Remaining() = 0;
    // The file read, or empty for memory; for messages.
    virtual std::wstring Source() = 0;
};

namespace Reader {

using Factory = System::Functions::Template::Factory<System::Pointer<IReader, 1>(const std::wstring& path),
                                                     System::Pointer<IReader, 1>(
                                                         System::Pointer<System::IMemory, 1> buffer)>;
extern QUILON_API Factory New;

// Whether the file at `path` is an archive; answered by the library that
// holds the concrete streams.
QUILON_API bool IsArchive(const std::wstring& path);
QUILON_DECLARE_FUNCTION_SLOT(IsArchive, 1, bool (*)(const std::wstring& path));

} // namespace Reader

} // namespace Quilon_::System::Serialization::Binary
