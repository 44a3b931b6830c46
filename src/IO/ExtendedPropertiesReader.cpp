#include "Quilon_/IO/ExtendedPropertiesReader.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertiesReader, L"Quilon_::IO::IExtendedPropertiesReader",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertiesReaderCollection,
                             L"Quilon_::IO::IExtendedPropertiesReaderCollection",
                             System::Collections::Template::ICollection<IExtendedPropertiesReader>)

ExtendedPropertiesReaderCollection::Factory ExtendedPropertiesReaderCollection::New;

} // namespace Quilon_::IO
