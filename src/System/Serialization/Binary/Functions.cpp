#include "Quilon_/System/Serialization/Binary/Functions.h"

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"
#include "Quilon_/System/Threading/CriticalSection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Serialization::Binary {

Functions::Functions(Writer writer, Reader reader, unsigned short version)
    : writer(writer), reader(reader), version(version)
{
    Serialization::Detail::CheckMinimumVersion(version);
}

namespace {

using std::int64_t;
using std::uint64_t;
using std::vector;

void WriteNothing(WriterRef, System::Any&) {}
void ReadNothing(ReaderRef, System::Any& value)
{
    value = System::Any();
}

// The rows of the core's own types. A vector of T and T itself share their
// stream operators, so each row is one line.
std::unordered_map<std::wstring, Functions>& Table()
{
    // Never destroyed: archives may be read until the process ends.
    static auto* const table = new std::unordered_map<std::wstring, Functions>;
    return *table;
}

void Enter(const std::type_info& type, Functions::Writer writer, Functions::Reader reader,
           unsigned short version)
{
    Functions row(writer, reader, version);
    System::Threading::GeneralCriticalSectionScope lock;
    Table().try_emplace(System::Helper::TypeName(type), row);
}

template <class T>
void Row()
{
    Enter(typeid(T), &Detail::WriteRow<T>, &Detail::ReadRow<T>, OldestVersion);
}

void RegisterCoreRows()
{
    Enter(typeid(void), &WriteNothing, &ReadNothing, OldestVersion);
    Row<bool>();
    Row<char>();
    Row<unsigned char>();
    Row<short>();
    Row<unsigned short>();
    Row<int>();
    Row<unsigned int>();
    Row<int64_t>();
    Row<uint64_t>();
    Row<float>();
    Row<double>();
    Row<std::complex<float>>();
    Row<std::complex<double>>();
    Row<boost::rational<int>>();
    Row<boost::rational<unsigned int>>();
    Row<vector<bool>>();
    Row<vector<char>>();
    Row<vector<unsigned char>>();
    Row<vector<short>>();
    Row<vector<unsigned short>>();
    Row<vector<int>>();
    Row<vector<unsigned int>>();
    Row<vector<int64_t>>();
    Row<vector<uint64_t>>();
    Row<vector<float>>();
    Row<vector<double>>();
    Row<vector<std::complex<float>>>();
    Row<vector<std::complex<double>>>();
    Row<vector<System::Any>>();
    Row<vector<vector<int64_t>>>();
    Row<vector<vector<float>>>();
    Row<vector<vector<double>>>();
    Row<std::pair<vector<int64_t>, int64_t>>();
    Row<vector<std::pair<vector<int64_t>, int64_t>>>();
    Row<std::pair<int64_t, int64_t>>();
    Row<vector<std::pair<System::Any, System::LIString>>>();
    // Texts and types stand in archives as often as numbers do.
    Row<std::string>();
    Row<std::wstring>();
    Row<vector<std::wstring>>();
    Row<System::LIString>();
    Row<System::Type>();
    Row<System::DateTime>();
    Row<Math::Moments>();
    Row<vector<Math::Moments>>();
}

} // namespace

std::unordered_map<std::wstring, Functions>& GetFunctions()
{
    // The core's rows come first, so that they win over any later row of
    // the same name.
    static const bool filled = (RegisterCoreRows(), true);
    (void)filled;
    return Table();
}

void Register(const std::type_info& type, Functions::Writer writer, Functions::Reader reader,
              unsigned short version)
{
    GetFunctions();
    Enter(type, writer, reader, version);
}

namespace {
const Functions& RowOf(const std::wstring& name)
{
    auto& table = GetFunctions();
    auto found = table.find(name);
    if (found == table.end())
        QUILON_RAISE(L"No binary serialization functions for type '%1%'", name);
    return found->second;
}
} // namespace

namespace {

// Values and objects may hold further values and objects, so reading one
// recurses. A crafted archive of a few megabytes could nest deeply enough
// to exhaust the stack; no archive that the toolkit writes comes near this.
constexpr int DeepestNesting = 200;
thread_local int nesting = 0;

class NestingScope {
public:
    NestingScope()
    {
        if (nesting >= DeepestNesting)
            QUILON_RAISE(L"Archive values are nested more than %1% levels deep", DeepestNesting);
        ++nesting;
    }
    ~NestingScope() { --nesting; }
    NestingScope(const NestingScope&) = delete;
    NestingScope& operator=(const NestingScope&) = delete;
};

} // namespace

void WriteFramed(WriterRef writer, System::Any& value)
{
    const std::wstring name = System::Helper::TypeName(value.TypeInfo());
    const Functions& row = RowOf(name);
    writer = writer << name;
    row.writer(writer, value);
}

void ReadFramed(ReaderRef reader, System::Any& value)
{
    NestingScope scope;
    std::wstring name;
    reader = reader >> name;
    ReadFramedValue(std::move(reader), name, value);
}

void ReadFramedValue(ReaderRef reader, const std::wstring& name, System::Any& value)
{
    const Functions& row = RowOf(name);
    if (reader->Version() < row.version)
        QUILON_RAISE(L"Type '%1%' cannot be read from an archive of version %2% (oldest: %3%)", name,
                     reader->Version(), row.version);
    row.reader(reader, value);
}

// An object is found again by the full name of its most derived class,
// which is the name under which the library that holds the class registers
// its factory: Detail::QualifiedTypeName(typeid(CClass)).
void WriteFramedObject(WriterRef writer, System::Pointer<System::Interface, 0> object)
{
    if (!object) {
        writer << std::wstring();
        return;
    }
    System::Interface& instance = *object.Get();
    const std::wstring name = System::Detail::QualifiedTypeName(typeid(instance));
    System::Pointer<ISerializable, 0> serializable(object);
    if (!serializable)
        QUILON_RAISE(L"An object of class '%1%' cannot be written to an archive: it is not serializable",
                     name);
    writer = writer << name;
    serializable->Serialize(writer);
}

void ReadFramedObject(ReaderRef reader, System::Pointer<System::Interface, 0>& object)
{
    NestingScope scope;
    std::wstring name;
    reader = reader >> name;
    ReadFramedObject(std::move(reader), name, object);
}

void ReadFramedObject(ReaderRef reader, const std::wstring& name,
                      System::Pointer<System::Interface, 0>& object)
{
    if (name.empty()) {
        object = System::Pointer<System::Interface, 0>();
        return;
    }
    auto factories = Serialization::Factories();
    if (!factories->ContainsKey(name))
        QUILON_RAISE(L"Unknown class '%1%' in archive", name);
    const Serialization::Factory factory = factories->Item(name);
    if (reader->Version() < factory.minimumVersion)
        QUILON_RAISE(L"Class '%1%' cannot be read from an archive of version %2% (oldest: %3%)", name,
                     reader->Version(), factory.minimumVersion);
    System::Pointer<System::Interface, 1> made = factory();
    System::Pointer<ISerializable, 0> serializable(made);
    if (!serializable)
        QUILON_RAISE(L"An object of class '%1%' cannot be read from an archive: it is not serializable",
                     name);
    serializable->Deserialize(reader);
    object = made;
}

} // namespace Quilon_::System::Serialization::Binary
