#include "Quilon_/IO/ExtendedPropertiesWriter.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertiesWriter, L"Quilon_::IO::IExtendedPropertiesWriter",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertiesWriterCollection,
                             L"Quilon_::IO::IExtendedPropertiesWriterCollection",
                             System::Collections::Template::ICollection<IExtendedPropertiesWriter>)

ExtendedPropertiesWriterCollection::Factory ExtendedPropertiesWriterCollection::New;

} // namespace Quilon_::IO
