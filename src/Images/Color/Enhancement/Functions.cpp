#include "Quilon_/Images/Color/Enhancement/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Color::Enhancement::Functions {

Function1 BlackWhiteBalance(L"BlackWhiteBalance");
Function2 StainCorrection(L"StainCorrection");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    const System::LIString color(L"Image.Category.Color");

    RuleChain stains;
    stains
        .Check({CheckImageCategory::New(0, color), CheckImageScalar::New(0, true, false, true),
                CheckImageScalar::New(1, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0xC, 0x1F)});
    stains.AssignTo(StainCorrection);

    // A colour image in, one of its size, category and a type holding its
    // samples out.
    RuleChain balance;
    balance.Check({CheckImageCategory::New(0, color)})
        .Make({MakeImageCompatible::New(1, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xC)});
    balance.AssignTo(BlackWhiteBalance);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Color::Enhancement::Functions
