#include "Quilon_/Images/Morphology/Basic/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbLUT.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Basic::Functions {

Function5 ConstrainedThicken(L"ConstrainedThicken");
Function4 ConstrainedThin(L"ConstrainedThin");
Function1 Dilate(L"Dilate");
Function1 Erode(L"Erode");
Function2 HitOrMiss(L"HitOrMiss");
System::Functions::Template::Function<void (*)(Image, Image, LookUpTable, std::int64_t)> Thicken(L"Thicken");
System::Functions::Template::Function<void (*)(Image, Image, LookUpTable, std::int64_t)> Thin(L"Thin");

namespace {

using namespace Images::Functions::Rules;

void FillChains()
{
    const System::Functions::RuleChain erode = Morphology::Detail::ScalarToSameChain();
    erode.AssignTo(Erode, Dilate);

    System::Functions::RuleChain thin = erode.Clone();
    thin.Check({CheckImageScalar::New(0, false, false, false), CheckImageScalar::New(0, true, true, true)});
    thin.AssignTo(HitOrMiss, Thin, Thicken);

    System::Functions::RuleChain constrained = erode.Clone();
    constrained
        .Check({CheckImageScalar::New(0, false, false, false), CheckImageScalar::New(1, false, false, false)})
        .Make({MakeImageCompatible::New(2, 0, 0x2C, 0x1F), MakeImageCompatible::New(1, 0, 4, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xC)});
    constrained.AssignTo(ConstrainedThin, ConstrainedThicken);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Basic::Functions
