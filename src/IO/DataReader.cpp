#include "Quilon_/IO/DataReader.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(IDataReader, L"Quilon_::IO::IDataReader", System::Interface)

} // namespace Quilon_::IO
