#include "Quilon_/Images/Format.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IFormat, L"Quilon_::Images::IFormat", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IFixedBandFormat, L"Quilon_::Images::IFixedBandFormat", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IUniformFormat, L"Quilon_::Images::IUniformFormat", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBinaryFormat, L"Quilon_::Images::IBinaryFormat", IFormat)

UniformFormat::Factory UniformFormat::New;
BinaryFormat::Factory BinaryFormat::New;

} // namespace Quilon_::Images
