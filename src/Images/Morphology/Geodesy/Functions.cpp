#include "Quilon_/Images/Morphology/Geodesy/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Geodesy::Functions {

Function2 BorderKill(L"BorderKill");
Function2 BorderKillAndHoleFill(L"BorderKillAndHoleFill");
Function3 Dilate(L"Dilate");
Function4 Distance(L"Distance");
Function2 HoleFill(L"HoleFill");
Function1 Reconstruct(L"Reconstruct");
Function5 WeightedDistance(L"WeightedDistance");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    RuleChain reconstruct;
    reconstruct.Make({MakeImageCompatible::New(2, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xC)});
    reconstruct.AssignTo(Reconstruct);
    RuleChain dilate = reconstruct.Clone();
    dilate.Make({MakeImageCompatible::New(2, 0, 0x2C, 0x16)});
    dilate.AssignTo(Dilate);

    MakeImageOptions grey;
    grey.Set(System::LIString(L"Image.Category.Grey"));
    RuleChain distance;
    distance.Check({CheckImageBinary::New(0), CheckImageBinary::New(1)})
        .Make({MakeImageCompatible::New(2, 0, 4, grey, 0x16)});
    distance.AssignTo(Distance, WeightedDistance);

    Morphology::Detail::ScalarToSameChain().AssignTo(BorderKill, HoleFill, BorderKillAndHoleFill);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Geodesy::Functions
