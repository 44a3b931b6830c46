#include "Images/Functions/Rules/ImageArguments.h"

#include <cwchar>
#include <typeinfo>

namespace Quilon_::Images::Functions::Rules::Detail {

IImage* HeldImage(const System::Any& argument)
{
    using Object = System::Pointer<System::Interface, 0>;
    const System::Detail::AnyHolderBase* holder = argument.Holder();
    const void* value = holder ? holder->ValuePointer(typeid(Object)) : nullptr;
    if (!value)
        return nullptr;
    return System::Pointer<IImage, 0>(*static_cast<const Object*>(value)).Get();
}

std::int64_t SpatialDimension(const System::Ref<Quilon_::Geometry::ICoordinates>& size)
{
    const Quilon_::Geometry::Axes axes = size->Axes();
    std::int64_t dimension = size->AxisCount();
    if (axes & Quilon_::Geometry::aT)
        --dimension;
    if (axes & Quilon_::Geometry::aB)
        --dimension;
    return dimension;
}

System::Ref<Quilon_::Geometry::ICoordinates>
WithoutBand(const System::Ref<Quilon_::Geometry::ICoordinates>& size)
{
    const Quilon_::Geometry::Axes axes = size->Axes();
    if (!HasBand(axes))
        return size;
    System::Ref<Quilon_::Geometry::ICoordinates> copy = Cloned<Quilon_::Geometry::ICoordinates>(size);
    copy->SetAxes(static_cast<unsigned char>(axes & ~Quilon_::Geometry::aB));
    return copy;
}

} // namespace Quilon_::Images::Functions::Rules::Detail

namespace Quilon_::Images::Functions::Rules::Detail {

std::wstring WordText(unsigned short word)
{
    wchar_t text[8];
    std::swprintf(text, sizeof text / sizeof *text, L"0x%X", static_cast<unsigned>(word));
    return text;
}

} // namespace Quilon_::Images::Functions::Rules::Detail
