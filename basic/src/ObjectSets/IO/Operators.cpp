// ObjectSets::IO::Functions::Read and Write: the choice of a reader or
// writer from the calling thread's lists.
//
// Read asks the readers of the file's extension first, then any reader that
// recognises the file's first bytes; Write takes, among the writers of the
// extension, the one that converts least.
#include "ObjectSets/IO/Files.h"

#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"
#include "Quilon_/ObjectSets/IO/Functions.h"
#include "Quilon_/ObjectSets/IO/Globals.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/StringCollection.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <sys/stat.h>

namespace Quilon_::Basic::ObjectSets::IO {

namespace {

using Quilon_::ObjectSets::IObjectSet;
using ReaderRef = System::Ref<Quilon_::IO::IReader>;
using WriterRef = System::Ref<Quilon_::IO::IWriter>;
namespace Globals = Quilon_::ObjectSets::IO::Globals;

bool ObjectSetFileExists(const std::wstring& path)
{
    struct stat status {};
    return ::stat(System::ToAnsi(path).c_str(), &status) == 0;
}

bool Named(const std::vector<std::wstring>& extensions, const std::wstring& extension)
{
    return !extension.empty() &&
           std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

// A relative name not found from the working folder is looked for in the
// folders of ObjectSetFolders(), in their order.
std::wstring LocateObjectSetFile(const std::wstring& fileName)
{
    if (fileName.empty() || fileName.front() == L'/' || ObjectSetFileExists(fileName))
        return fileName;
    System::Pointer<System::Collections::IStringCollection, 0> folders = Globals::ObjectSetFolders();
    if (folders)
        for (std::int64_t i = 0; i < folders->Count(); ++i) {
            std::wstring folder = folders->Item(i);
            if (!folder.empty() && folder.back() != L'/')
                folder += L'/';
            if (ObjectSetFileExists(folder + fileName))
                return folder + fileName;
        }
    return fileName;
}

// The list's readers are shared by every thread that cloned the list.
ReaderRef OwnObjectSetReader(const ReaderRef& reader)
{
    System::Pointer<System::ICloneable, 0> cloneable(reader);
    return cloneable ? ReaderRef(cloneable->Clone()) : reader;
}

ReaderRef ChooseObjectSetReader(const std::wstring& path)
{
    System::Pointer<Quilon_::IO::IReaderCollection, 0> readers = Globals::ObjectSetReaders();
    const std::int64_t count = readers ? readers->Count() : 0;
    const std::wstring extension = ExtensionOf(path);
    for (std::int64_t i = 0; i < count; ++i) {
        ReaderRef reader = readers->Item(i);
        if (Named(reader->Extensions(), extension) && reader->Supports(IObjectSet::GetType()))
            return reader;
    }
    if (count > 0 && ObjectSetFileExists(path)) {
        const std::string text = LoadText(path);
        for (std::int64_t i = 0; i < count; ++i) {
            ReaderRef reader = readers->Item(i);
            if (reader->Supports(IObjectSet::GetType()) &&
                reader->CanRead(reinterpret_cast<const std::uint8_t*>(text.data()),
                                static_cast<std::int64_t>(text.size())))
                return reader;
        }
    }
    QUILON_RAISE(L"No object set file reader recognises the file '%1%'", path);
}

void ReadObjectSet(System::Ref<IObjectSet> set, const std::wstring& fileName)
{
    const std::wstring path = LocateObjectSetFile(fileName);
    ReaderRef reader = OwnObjectSetReader(ChooseObjectSetReader(path));
    reader->Open(path);
    reader->Read(set);
    reader->Close();
}

void WriteObjectSet(System::Ref<IObjectSet> set, const std::wstring& fileName)
{
    System::Pointer<Quilon_::IO::IWriterCollection, 0> writers = Globals::ObjectSetWriters();
    const std::wstring extension = ExtensionOf(fileName);
    System::Pointer<Quilon_::IO::IWriter, 0> best;
    Quilon_::IO::ConversionOptionsEnum bestConversion = Quilon_::IO::coLossyConversion;
    bool named = false;
    const std::int64_t count = writers ? writers->Count() : 0;
    for (std::int64_t i = 0; i < count; ++i) {
        WriterRef writer = writers->Item(i);
        if (!Named(writer->Extensions(), extension))
            continue;
        named = true;
        const System::Nullable<Quilon_::IO::ConversionOptionsEnum> conversion = writer->Conversion(set);
        if (conversion.HasValue() && (!best || conversion.Value() < bestConversion)) {
            best = writer;
            bestConversion = conversion.Value();
        }
    }
    if (!named)
        QUILON_RAISE(L"No object set file writer for the extension of the file '%1%'", fileName);
    if (!best)
        QUILON_RAISE(L"No object set file writer can store this object set in the file '%1%'", fileName);
    best->Write(set, fileName);
}

void RegisterObjectSetFileOperators()
{
    Quilon_::ObjectSets::IO::Functions::Read.Register(L"Object set files", &ReadObjectSet);
    Quilon_::ObjectSets::IO::Functions::Write.Register(L"Object set files", &WriteObjectSet);
}

const System::Template::Initializer<::Library> objectSetFileOperators(&RegisterObjectSetFileOperators,
                                                                      nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::IO
