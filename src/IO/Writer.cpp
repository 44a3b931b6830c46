#include "Quilon_/IO/Writer.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(IWriter, L"Quilon_::IO::IWriter", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IWriterCollection, L"Quilon_::IO::IWriterCollection",
                             System::Collections::Template::ICollection<IWriter>)

WriterCollection::Factory WriterCollection::New;

} // namespace Quilon_::IO
