#include "Quilon_/Images/ImageCache.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImageCache, L"Quilon_::Images::IImageCache", System::Interface)

namespace ImageCache {
Factory New;
} // namespace ImageCache

} // namespace Quilon_::Images
