#include "Quilon_/Images/BitmapConverter.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapConverter, L"Quilon_::Images::IBitmapConverter", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapConverterCollection, L"Quilon_::Images::IBitmapConverterCollection",
                             System::Collections::Template::ICollection<IBitmapConverter>)

BitmapConverterCollection::Factory BitmapConverterCollection::New;

} // namespace Quilon_::Images
