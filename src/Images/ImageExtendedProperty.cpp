#include "Quilon_/Images/ImageExtendedProperty.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Type.h"

QUILON_DEFINE_ENUM_TEXT(Images::ImageExtendedProperty::TagEnum, Number,
                        {Images::ImageExtendedProperty::tOther, L"tOther"},
                        {Images::ImageExtendedProperty::tCategory, L"tCategory"},
                        {Images::ImageExtendedProperty::tPalette, L"tPalette"},
                        {Images::ImageExtendedProperty::tROI, L"tROI"},
                        {Images::ImageExtendedProperty::tOrigin, L"tOrigin"})

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImageExtendedProperty, L"Quilon_::Images::IImageExtendedProperty",
                             System::IExtendedProperty)

ImageExtendedProperty::Factory ImageExtendedProperty::New;

} // namespace Quilon_::Images
