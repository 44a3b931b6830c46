// The lists of object-set file formats of the main thread, which every
// other thread clones: the CSV reader and writer, and empty lists of
// extended-properties readers and writers for other libraries to fill.
#include "ObjectSets/IO/Files.h"
#include "System/SettingsLifetime.h"

#include "Quilon_/IO/ExtendedPropertiesReader.h"
#include "Quilon_/IO/ExtendedPropertiesWriter.h"
#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"
#include "Quilon_/ObjectSets/IO/Globals.h"

namespace Quilon_::Basic::ObjectSets::IO {

namespace {

namespace Globals = Quilon_::ObjectSets::IO::Globals;
namespace QIO = Quilon_::IO;

void SetObjectSetFormats()
{
    System::Ref<QIO::IReaderCollection> readers = QIO::ReaderCollection::New();
    readers->Add(NewCsvReader());
    Globals::SetObjectSetReaders(readers);
    System::Ref<QIO::IWriterCollection> writers = QIO::WriterCollection::New();
    writers->Add(NewCsvWriter());
    Globals::SetObjectSetWriters(writers);
    Globals::SetExtendedPropertiesReaders(QIO::ExtendedPropertiesReaderCollection::New());
    Globals::SetExtendedPropertiesWriters(QIO::ExtendedPropertiesWriterCollection::New());
}

void ReleaseObjectSetFormats()
{
    Globals::ClearObjectSetReaders();
    Globals::ClearObjectSetWriters();
    Globals::ClearExtendedPropertiesReaders();
    Globals::ClearExtendedPropertiesWriters();
}

// After the collections' classes are registered (0.2).
const SettingsLifetime objectSetFormats(&SetObjectSetFormats, &ReleaseObjectSetFormats, 0.3f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::IO
