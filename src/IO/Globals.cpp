#include "Quilon_/IO/Globals.h"

#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"

namespace Quilon_::IO::Globals {

// What the main thread sets (the libraries' start-up code) is what every
// later thread clones.
QUILON_DEFINE_SETTING(Readers, SetReaders, ClearReaders, System::Ref<IReaderCollection>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(Writers, SetWriters, ClearWriters, System::Ref<IWriterCollection>(),
                      System::gvsPerThreadFromMain)

} // namespace Quilon_::IO::Globals
