#include "Quilon_/Images/Color/ColorSpaceDictionary.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IDictionary<std::wstring, Images::Color::IColorSpace>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IDictionary<std::wstring, Images::Color::IColorSpace>, Interface>(
            L"Quilon_::System::Collections::Template::IDictionary<std::wstring,Quilon_::Images::Color::"
            L"IColorSpace>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Images::Color {

QUILON_DEFINE_INTERFACE_TYPE(IColorSpaceDictionary, L"Quilon_::Images::Color::IColorSpaceDictionary",
                             System::Collections::Template::IDictionary<std::wstring, IColorSpace>)

ColorSpaceDictionary::Factory ColorSpaceDictionary::New;

namespace Globals {

// Per thread, starting from what the main thread set, as the settings of
// measuring.
QUILON_DEFINE_SETTING(ColorSpaces, SetColorSpaces, ClearColorSpaces, System::Ref<IColorSpaceDictionary>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(DefaultColorSpace, SetDefaultColorSpace, ClearDefaultColorSpace,
                      System::Pointer<IColorSpace, 0>(), System::gvsPerThreadFromMain)

void ClearCollectionColorSpaces()
{
    System::Ref<IColorSpaceDictionary> spaces = ColorSpaces();
    if (spaces.Get())
        spaces->Clear();
}

} // namespace Globals

} // namespace Quilon_::Images::Color
