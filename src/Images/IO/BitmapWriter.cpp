#include "Quilon_/Images/IO/BitmapWriter.h"

namespace Quilon_::Images::IO {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapWriter, L"Quilon_::Images::IO::IBitmapWriter", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapWriterCollection, L"Quilon_::Images::IO::IBitmapWriterCollection",
                             System::Collections::Template::ICollection<IBitmapWriter>)

BitmapWriterCollection::Factory BitmapWriterCollection::New;

namespace DICOMWriter {

QUILON_DEFINE_FUNCTION_SLOT(GenerateUniqueIdentifier, 1, std::wstring (*)(const std::wstring&))

std::wstring GenerateUniqueIdentifier(const std::wstring& root)
{
    return QUILON_FUNCTION_SLOT(GenerateUniqueIdentifier, 1)(root);
}

} // namespace DICOMWriter

} // namespace Quilon_::Images::IO
