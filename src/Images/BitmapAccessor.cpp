#include "Quilon_/Images/BitmapAccessor.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapAccessor, L"Quilon_::Images::IBitmapAccessor", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapLocator, L"Quilon_::Images::IBitmapLocator", System::Interface)

BitmapAccessor::Factory BitmapAccessor::New;
BitmapLocator::Factory BitmapLocator::New;
UniformFormatLocator::Factory UniformFormatLocator::New;

} // namespace Quilon_::Images
