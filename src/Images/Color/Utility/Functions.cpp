#include "Quilon_/Images/Color/Utility/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageOptions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Color::Utility::Functions {

System::Functions::Template::Function<void (*)(Image, Image)> ExcessRGB(L"ExcessRGB");
System::Functions::Template::Function<void (*)(Image, Image)> ExpandRGB(L"ExpandRGB");
System::Functions::Template::Function<void (*)(Image, Image)> Intensity(L"Intensity");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

MakeImageOptions OfCategory(const wchar_t* category)
{
    MakeImageOptions options;
    options.Set(System::LIString(category));
    return options;
}

void FillChains()
{
    // The make rule's category options drop or add the band axis.
    RuleChain intensity;
    intensity.Make({MakeImageCompatible::New(1, 0, 4, OfCategory(L"Image.Category.Grey"), 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 4)});
    intensity.AssignTo(Intensity);

    RuleChain expand;
    expand.Check({CheckImageScalar::New(0, false, true, false)})
        .Make({MakeImageCompatible::New(1, 0, 4, OfCategory(L"Image.Category.Color"), 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 4)});
    expand.AssignTo(ExpandRGB);

    RuleChain excess;
    excess.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)});
    excess.AssignTo(ExcessRGB);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Color::Utility::Functions
