#include "Quilon_/IO/Preview/PreviewGenerator.h"

namespace Quilon_::IO::Preview {

QUILON_DEFINE_INTERFACE_TYPE(IPreviewGenerator, L"Quilon_::IO::Preview::IPreviewGenerator", System::Interface)

} // namespace Quilon_::IO::Preview
