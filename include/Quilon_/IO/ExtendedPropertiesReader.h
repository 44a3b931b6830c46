// Readers of the extended properties of a file (its resolution, its
// acquisition date, the names of its channels) without its data, one per
// format, so that a browser can show them cheaply.
//
//   Ref<IO::IExtendedPropertiesReader> reader = ...;   // from a Globals list
//   reader->Open(L"cells.tif");
//   reader->Read(container);                   // adds the file's properties
//   reader->Close();
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System {
class IExtendedPropertiesContainer;
class IMemory;
} // namespace Quilon_::System

namespace Quilon_::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IExtendedPropertiesReader : public virtual System::Interface {
    QUILON_INTERFACE(IExtendedPropertiesReader)
public:
    // 1. A short name for lists and messages.
    virtual std::wstring Name() = 0;
    // 2. The extensions of the format's files, lower case, without the dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. How many leading bytes of a file CanRead needs to decide.
    virtual std::int64_t SignatureSize() = 0;
    // 4. Whether `count` leading bytes of a file are this format's.
    virtual bool CanRead(const std::uint8_t* bytes, std::int64_t count) = 0;
    // 5. Opens the file; raises, naming it, when it is missing or not of the
    // format.
    virtual void Open(const std::wstring& fileName) = 0;
    // 6. The same on the bytes of a file held in memory.
    virtual void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) = 0;
    // 7. Forgets the open file; does nothing when none is open.
    virtual void Close() = 0;
    // 8. Adds the open file's properties to `container`, replacing those of
    // the same names.
    virtual void Read(System::Ref<System::IExtendedPropertiesContainer> container) = 0;
};

class QUILON_API IExtendedPropertiesReaderCollection
    : public virtual System::Collections::Template::ICollection<IExtendedPropertiesReader> {
    QUILON_INTERFACE(IExtendedPropertiesReaderCollection)
};

namespace ExtendedPropertiesReaderCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IExtendedPropertiesReaderCollection>()>;
extern QUILON_API Factory New;
} // namespace ExtendedPropertiesReaderCollection

} // namespace Quilon_::IO
