#include "Quilon_/ObjectSets/IO/Globals.h"

#include "Quilon_/IO/ExtendedPropertiesReader.h"
#include "Quilon_/IO/ExtendedPropertiesWriter.h"
#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"
#include "Quilon_/System/Collections/StringCollection.h"

namespace Quilon_::ObjectSets::IO::Globals {

// What the main thread sets (the libraries' start-up code) is what every
// later thread clones.
QUILON_DEFINE_SETTING(ObjectSetFolders, SetObjectSetFolders, ClearObjectSetFolders,
                      System::Ref<System::Collections::IStringCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(ObjectSetReaders, SetObjectSetReaders, ClearObjectSetReaders,
                      System::Ref<Quilon_::IO::IReaderCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(ObjectSetWriters, SetObjectSetWriters, ClearObjectSetWriters,
                      System::Ref<Quilon_::IO::IWriterCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(ExtendedPropertiesReaders, SetExtendedPropertiesReaders, ClearExtendedPropertiesReaders,
                      System::Ref<Quilon_::IO::IExtendedPropertiesReaderCollection>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(ExtendedPropertiesWriters, SetExtendedPropertiesWriters, ClearExtendedPropertiesWriters,
                      System::Ref<Quilon_::IO::IExtendedPropertiesWriterCollection>(),
                      System::gvsPerThreadFromMain)

// Empties the calling thread's list in place: a thread without a list has
// nothing to empty.
void ClearCollectionExtendedPropertiesReaders()
{
    System::Pointer<Quilon_::IO::IExtendedPropertiesReaderCollection, 0> readers =
        ExtendedPropertiesReaders();
    if (readers)
        readers->Clear();
}

void ClearCollectionExtendedPropertiesWriters()
{
    System::Pointer<Quilon_::IO::IExtendedPropertiesWriterCollection, 0> writers =
        ExtendedPropertiesWriters();
    if (writers)
        writers->Clear();
}

} // namespace Quilon_::ObjectSets::IO::Globals
