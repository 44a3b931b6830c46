#include "Quilon_/Images/BitmapAccess.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapAccess, L"Quilon_::Images::IBitmapAccess", System::IDestructionEvents)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapAccessProperties, L"Quilon_::Images::IBitmapAccessProperties",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapAccessProvider, L"Quilon_::Images::IBitmapAccessProvider",
                             System::Interface)

BitmapAccess::Factory BitmapAccess::New;
BitmapAccessProperties::Factory BitmapAccessProperties::New;

} // namespace Quilon_::Images

namespace Quilon_::System {

Any ToAny(const Images::BitmapAccessOptionsEnum& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(Images::BitmapAccessOptionsEnum, Number, {Images::baoMemory, L"baoMemory"},
                        {Images::baoRead, L"baoRead"}, {Images::baoWrite, L"baoWrite"},
                        {Images::baoReadWrite, L"baoReadWrite"})
