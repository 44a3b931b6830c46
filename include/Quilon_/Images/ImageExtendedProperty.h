// An extended property that knows which of the image's well-known
// properties it is, so that tools can list and edit them by kind:
//
//   Ref<Images::IImageExtendedProperty> p =
//       Images::ImageExtendedProperty::New(Images::ImageExtendedProperty::tCategory,
//       ToAny(LIString(L"Image.Category.Grey")));
//   p->Tag();    // tCategory
//   p->Name();   // "Property.Image.Category"
#pragma once

#include "Quilon_/System/ExtendedProperty.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {

namespace ImageExtendedProperty {
// The kinds; tOther for any property that is none of the four.
enum TagEnumTag : std::int32_t {
    tOther = 0,
    tCategory = 1,
    tPalette = 2,
    tROI = 3,
    tOrigin = 4,
};
using TagEnum = TagEnumTag;
} // namespace ImageExtendedProperty

class QUILON_API IImageExtendedProperty : public virtual System::IExtendedProperty {
    QUILON_INTERFACE(IImageExtendedProperty)
public:
    virtual ImageExtendedProperty::TagEnum Tag() = 0;
    virtual void SetTag(ImageExtendedProperty::TagEnum tag) = 0;
};

namespace ImageExtendedProperty {
// New(tag, value): named by the key of the tag's property.
using Factory =
    System::Functions::Template::Factory<System::Ref<IImageExtendedProperty>(TagEnum, const System::Any&)>;
extern QUILON_API Factory New;
} // namespace ImageExtendedProperty

} // namespace Quilon_::Images

namespace Quilon_::System {
QUILON_API std::wstring ToString(Images::ImageExtendedProperty::TagEnum value);
} // namespace Quilon_::System
