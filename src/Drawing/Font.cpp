#include "Quilon_/Drawing/Font.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IFont, L"Quilon_::Drawing::IFont", System::Interface)

Font::Factory Font::New;

} // namespace Quilon_::Drawing
