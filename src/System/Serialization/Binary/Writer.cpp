#include "Quilon_/System/Serialization/Binary/Writer.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Serialization::Binary {

QUILON_DEFINE_INTERFACE_TYPE(IWriter, L"Quilon_::System::Serialization::Binary::IWriter", System::Interface)

Writer::Factory Writer::New;

namespace Writer {
QUILON_DEFINE_SETTING(SaveIntAsInt64, SetSaveIntAsInt64, ClearSaveIntAsInt64, true)
QUILON_DEFINE_SETTING(SaveStringAsAnsi, SetSaveStringAsAnsi, ClearSaveStringAsAnsi, false)
} // namespace Writer

} // namespace Quilon_::System::Serialization::Binary
