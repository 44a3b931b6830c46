#include "Quilon_/Images/IO/BitmapReader.h"

namespace Quilon_::Images::IO {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapReader, L"Quilon_::Images::IO::IBitmapReader", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IMultiPageBitmapReader, L"Quilon_::Images::IO::IMultiPageBitmapReader",
                             IBitmapReader)
QUILON_DEFINE_INTERFACE_TYPE(ITiledBitmapReader, L"Quilon_::Images::IO::ITiledBitmapReader", IBitmapReader)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapReaderCollection, L"Quilon_::Images::IO::IBitmapReaderCollection",
                             System::Collections::Template::ICollection<IBitmapReader>)

BitmapReaderCollection::Factory BitmapReaderCollection::New;

} // namespace Quilon_::Images::IO
