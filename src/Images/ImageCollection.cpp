#include "Quilon_/Images/ImageCollection.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImageCollection, L"Quilon_::Images::IImageCollection",
                             System::Collections::Template::ICollection<IImage>)

ImageCollection::Factory ImageCollection::New;

} // namespace Quilon_::Images
