#include "Quilon_/Images/IO/Globals.h"

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

} // namespace Quilon_::Images::IO::Globals
