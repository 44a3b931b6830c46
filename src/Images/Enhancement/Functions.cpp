#include "Quilon_/Images/Enhancement/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Enhancement::Functions {

Function2 EqualizeHistogram(L"EqualizeHistogram");
Function<void(Image, System::Pointer<IImage, 0>, System::Pointer<IImage, 0>, Image)>
    ShadingCorrection(L"ShadingCorrection");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    RuleChain global;
    global.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x27, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 7)});
    global.AssignTo(EqualizeHistogram.Overload<0>());

    RuleChain tiled;
    tiled
        .Check({CheckImageCompatible::New(1, 0, 8), CheckImageScalar::New(0, false, false, false),
                CheckImageScalar::New(1, false, false, false), CheckImageDimension::New(0, 2, idrEqual)})
        .Make({MakeImageCompatible::New(1, 0, 0xF, 0x1F)})
        .PostExecute({CheckImageCompatible::New(1, 0, 0xB)});
    tiled.AssignTo(EqualizeHistogram.Overload<1>(), EqualizeHistogram.Overload<2>());

    RuleChain shading;
    shading.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(3, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(3, 0, 0xC)});
    shading.AssignTo(ShadingCorrection);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Enhancement::Functions
