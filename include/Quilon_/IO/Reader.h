// Readers of files of any kind of object: one object per file format, which
// recognises its files by their first bytes or their extension and reads
// one into an object of the kind it knows (an object set, a classifier...).
//
// Implementation libraries add their readers to a collection of the domain
// (IO::Globals::Readers(), ObjectSets::IO::Globals::ObjectSetReaders()),
// from which the domain's Read operator picks one. Used directly:
//
//   Ref<IO::IReader> reader = ...;              // e.g. from the collection
//   reader->Open(L"cells.csv");                 // reads and checks the header
//   reader->Read(set);                          // fills `set`
//   reader->Close();
//
// A reader holds the file it opened: the collections' readers are shared,
// so the operators work on a clone (System::ICloneable) when it has one.
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System {
class IMemory;
} // namespace Quilon_::System

namespace Quilon_::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IReader : public virtual System::Interface {
    QUILON_INTERFACE(IReader)
public:
    // 1. A short name for lists and messages: "CSV".
    virtual std::wstring Name() = 0;
    // 2. The extensions of the format's files, lower case, without the dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. Whether the reader fills objects of `type` (an interface type).
    virtual bool Supports(const System::Type& type) = 0;
    // 4. Whether `count` leading bytes of a file are this format's; a text
    // format without a signature answers false and is chosen by extension.
    virtual bool CanRead(const std::uint8_t* bytes, std::int64_t count) = 0;
    // 5. Opens the file; raises, naming the file, when it is missing or not
    // of the format.
    virtual void Open(const std::wstring& fileName) = 0;
    // 6. The same on the bytes of a file held in memory; `name` stands for
    // the file in messages. The reader keeps a reference to `bytes`.
    virtual void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) = 0;
    // 7. Forgets the open file; does nothing when none is open.
    virtual void Close() = 0;
    // 8. Reads the open file into `target`, which must be of a supported
    // type; the target is left as it was when reading fails.
    virtual void Read(System::Ref<System::Interface> target) = 0;
};

class QUILON_API IReaderCollection : public virtual System::Collections::Template::ICollection<IReader> {
    QUILON_INTERFACE(IReaderCollection)
};

namespace ReaderCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IReaderCollection>()>;
extern QUILON_API Factory New;
} // namespace ReaderCollection

} // namespace Quilon_::IO
