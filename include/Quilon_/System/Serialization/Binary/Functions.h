// The table of dynamic values: for each type that an Any may hold in an
// archive, by its presentable name, the pair of functions that write and
// read the value, and the oldest archive version that has it.
//
//   Binary::Register<Geometry::Handle>();    // a domain's type, in its initialiser
//
// The concrete streams frame an Any as the type's name followed by what the
// row's writer writes; WriteFramed and ReadFramed do exactly that. Objects
// (slot 4) are framed by their class name, as registered in Factories(),
// followed by what the object's ISerializable writes:
// WriteFramedObject and ReadFramedObject.
#pragma once

#include "Quilon_/System/Serialization/Binary/Serializable.h"

#include <string>
#include <typeinfo>
#include <unordered_map>

namespace Quilon_::System::Serialization::Binary {

class QUILON_API Functions {
public:
    using Writer = void (*)(WriterRef writer, System::Any& value);
    using Reader = void (*)(ReaderRef reader, System::Any& value);

    // Raises unless OldestVersion <= version <= CurrentVersion.
    Functions(Writer writer, Reader reader, unsigned short version);

    Writer writer;
    Reader reader;
    unsigned short version;
};

// Made on first use, with the rows of the core's own types.
QUILON_API std::unordered_map<std::wstring, Functions>& GetFunctions();

// Enters the row under Helper::TypeName(type); the first row of a name stays.
QUILON_API void Register(const std::type_info& type, Functions::Writer writer, Functions::Reader reader,
                         unsigned short version);

namespace Detail {
template <class T>
void WriteRow(WriterRef writer, System::Any& value)
{
    writer << value.CastTo<T>();
}
template <class T>
void ReadRow(ReaderRef reader, System::Any& value)
{
    T read{};
    reader >> read;
    value = System::ToAny(read);
}
} // namespace Detail

// The row of T through its stream operators.
template <class T>
void Register(unsigned short version = OldestVersion)
{
    Register(typeid(T), &Detail::WriteRow<T>, &Detail::ReadRow<T>, version);
}

// The type's name, then the row's record; raises for a type without a row.
QUILON_API void WriteFramed(WriterRef writer, System::Any& value);
QUILON_API void ReadFramed(ReaderRef reader, System::Any& value);
// The rest of a value's frame once its name has been read, for tools that
// look at the name first.
QUILON_API void ReadFramedValue(ReaderRef reader, const std::wstring& name, System::Any& value);

// The full name of the object's most derived class (Detail::QualifiedTypeName,
// the root namespace kept), then what its Serialize writes; a null object is
// an empty name alone. Raises for an object that is not ISerializable.
QUILON_API void WriteFramedObject(WriterRef writer, System::Pointer<System::Interface, 0> object);
// The name, the factory registered under it in Factories(), a new instance
// and its Deserialize. Refuses a class unknown to this process, and an
// archive older than the factory's minimum version.
QUILON_API void ReadFramedObject(ReaderRef reader, System::Pointer<System::Interface, 0>& object);
// The rest of an object's frame once its name has been read.
QUILON_API void ReadFramedObject(ReaderRef reader, const std::wstring& name,
                                 System::Pointer<System::Interface, 0>& object);

} // namespace Quilon_::System::Serialization::Binary
