#include "Quilon_/Images/ImageSource.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImageSource, L"Quilon_::Images::IImageSource", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IImagesSource, L"Quilon_::Images::IImagesSource", System::Interface)

} // namespace Quilon_::Images
