#include "Quilon_/IO/Reader.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(IReader, L"Quilon_::IO::IReader", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IReaderCollection, L"Quilon_::IO::IReaderCollection",
                             System::Collections::Template::ICollection<IReader>)

ReaderCollection::Factory ReaderCollection::New;

} // namespace Quilon_::IO
