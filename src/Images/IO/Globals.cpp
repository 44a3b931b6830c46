#include "Quilon_/Images/IO/Globals.h"

#include "Quilon_/IO/ExtendedPropertiesReader.h"
#include "Quilon_/IO/ExtendedPropertiesWriter.h"
#include "Quilon_/Images/IO/BitmapReader.h"
#include "Quilon_/Images/IO/BitmapWriter.h"
#include "Quilon_/System/Collections/StringCollection.h"

namespace Quilon_::Images::IO::Globals {

// What the main thread sets (the libraries' start-up code) is what every
// later thread clones.
QUILON_DEFINE_SETTING(ImageFolders, SetImageFolders, ClearImageFolders,
                      System::Ref<System::Collections::IStringCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(BitmapReaders, SetBitmapReaders, ClearBitmapReaders,
                      System::Ref<IBitmapReaderCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(BitmapWriters, SetBitmapWriters, ClearBitmapWriters,
                      System::Ref<IBitmapWriterCollection>(), System::gvsPerThreadFromMain)
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

} // namespace Quilon_::Images::IO::Globals
