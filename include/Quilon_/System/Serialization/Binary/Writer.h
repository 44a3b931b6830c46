// The writing side of a binary archive: a flat little-endian byte stream to
// which values and objects are written in order, then kept in memory or
// saved to a file.
//
//   Pointer<IWriter, 1> writer = Writer::New(Writer::SaveIntAsInt64(), Writer::SaveStringAsAnsi());
//   writer << std::wstring(L"name") << values;
//   writer->Save(L"/tmp/values.bin");
//
// The concrete streams come from another library, which registers them on
// Writer::New at start-up.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Memory.h"

#include <cstdint>
#include <string>

namespace Quilon_::System::Serialization::Binary {

class QUILON_API IWriter : public virtual System::Interface {
    QUILON_INTERFACE(IWriter)
public:
    // Counted integers (lengths, sizes) take 8 bytes, else 4.
    virtual bool SaveIntAsInt64() = 0;
    // Wide strings are stored in their narrow form.
    virtual bool SaveStringAsAnsi() = 0;
    virtual void Write(const void* data, std::int64_t size) = 0;
    // A dynamic value, framed so that a reader finds its type again.
    virtual void Write(System::Any& value) = 0;
    // An object that implements ISerializable, framed by its class name.
    virtual void Write(System::Pointer<System::Interface, 0> object, bool reserved) = 0;
    // The archive as written so far, header included.
    virtual System::Pointer<System::IMemory, 1> Contents() = 0;
    // Writes the archive to the file `path`, replacing it.
    virtual void Save(const std::wstring& path) = 0;
};

namespace Writer {

using Factory = System::Functions::Template::Factory<System::Pointer<IWriter, 1>(bool saveIntAsInt64,
                                                                                 bool saveStringAsAnsi)>;
extern QUILON_API Factory New;

// The flags that applications pass to new writers; 8-byte counts and UTF-16
// strings unless set otherwise.
QUILON_DECLARE_SETTING(SaveIntAsInt64, SetSaveIntAsInt64, ClearSaveIntAsInt64, bool);
QUILON_DECLARE_SETTING(SaveStringAsAnsi, SetSaveStringAsAnsi, ClearSaveStringAsAnsi, bool);

} // namespace Writer

} // namespace Quilon_::System::Serialization::Binary
