#include "Quilon_/Images/Padding.h"

#include "Quilon_/System/EnumText.h"

namespace Quilon_::Images {

Padding::Padding() : paddingType(ptConstant), paddingValue(System::ToAny(std::int64_t(0))) {}

Padding::Padding(PaddingTypeEnum type, const System::Any& value) : paddingType(type), paddingValue(value) {}

bool Padding::operator==(const Padding& other) const
{
    return paddingType == other.paddingType && paddingValue == other.paddingValue;
}

} // namespace Quilon_::Images

namespace Quilon_::System {

Any ToAny(const Images::Padding& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(Images::PaddingTypeEnum, Number, {Images::ptConstant, L"ptConstant"},
                        {Images::ptReplicate, L"ptReplicate"}, {Images::ptMirror, L"ptMirror"},
                        {Images::ptNone, L"ptNone"})
