#include "Quilon_/System/Collections/StringCollection.h"

namespace Quilon_::System::Collections {

// The value-collection template has no record of its own: the string list
// is recorded as a direct interface.
QUILON_DEFINE_INTERFACE_TYPE(IStringCollection, L"Quilon_::System::Collections::IStringCollection", Interface)

} // namespace Quilon_::System::Collections
