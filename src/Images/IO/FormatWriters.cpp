#include "Quilon_/Images/IO/FormatWriters.h"

#include "Quilon_/System/EnumText.h"

namespace Quilon_::Images::IO {

QUILON_DEFINE_INTERFACE_TYPE(IJPEGWriter, L"Quilon_::Images::IO::IJPEGWriter", IBitmapWriter)
QUILON_DEFINE_INTERFACE_TYPE(IPNGImageWriter, L"Quilon_::Images::IO::IPNGImageWriter", IBitmapWriter)
QUILON_DEFINE_INTERFACE_TYPE(ITIFFWriter, L"Quilon_::Images::IO::ITIFFWriter", IBitmapWriter)
QUILON_DEFINE_INTERFACE_TYPE(IDICOMWriter, L"Quilon_::Images::IO::IDICOMWriter", IBitmapWriter)

} // namespace Quilon_::Images::IO

QUILON_DEFINE_ENUM_TEXT(Images::IO::TIFFCompressionEnum, Number, {Images::IO::tcNone, L"tcNone"},
                        {Images::IO::tcLZW, L"tcLZW"}, {Images::IO::tcDeflate, L"tcDeflate"},
                        {Images::IO::tcPackBits, L"tcPackBits"})
