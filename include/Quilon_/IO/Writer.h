// Writers of files of any kind of object: one object per file format, which
// says how well its format stores an object and writes it.
//
// Implementation libraries add their writers to a collection of the domain
// (IO::Globals::Writers(), ObjectSets::IO::Globals::ObjectSetWriters()); the
// domain's Write operator picks, among the writers of the file's extension,
// the one that converts least. Used directly:
//
//   Ref<IO::IWriter> writer = ...;
//   System::Nullable<IO::ConversionOptionsEnum> how = writer->Conversion(set);
//   if (how.HasValue())
//       writer->Write(set, L"objects.csv");
#pragma once

#include "Quilon_/IO/ConversionOptions.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Nullable.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <string>
#include <vector>

namespace Quilon_::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IWriter : public virtual System::Interface {
    QUILON_INTERFACE(IWriter)
public:
    // 1. A short name for lists and messages: "CSV".
    virtual std::wstring Name() = 0;
    // 2. The extensions it writes, lower case, without the dot; the first is
    // the one it prefers.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. How `source` would be stored; no value when the format cannot hold
    // it at all.
    virtual System::Nullable<ConversionOptionsEnum> Conversion(System::Ref<System::Interface> source) = 0;
    // 4. Writes `source` to `fileName`; raises, naming the file, when it
    // cannot.
    virtual void Write(System::Ref<System::Interface> source, const std::wstring& fileName) = 0;
};

class QUILON_API IWriterCollection : public virtual System::Collections::Template::ICollection<IWriter> {
    QUILON_INTERFACE(IWriterCollection)
};

namespace WriterCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IWriterCollection>()>;
extern QUILON_API Factory New;
} // namespace WriterCollection

} // namespace Quilon_::IO
