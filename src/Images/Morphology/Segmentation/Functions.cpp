#include "Quilon_/Images/Morphology/Segmentation/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Segmentation::Functions {

Function1 BlackTophat(L"BlackTophat");
Function2 CatchmentBasins(L"CatchmentBasins");
Function3 SeededCatchmentBasins(L"SeededCatchmentBasins");
Function3 SeededWatershed(L"SeededWatershed");
Function4 SplitConvex(L"SplitConvex");
Function2 Watershed(L"Watershed");
Function1 WhiteTophat(L"WhiteTophat");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

// The seeded operators: a scalar input, binary seeds of its size, and an
// output (argument 2) of the input's size.
RuleChain SeededChain(const wchar_t* category)
{
    MakeImageOptions options;
    options.Set(System::LIString(category));
    RuleChain chain;
    chain
        .Check({CheckImageScalar::New(0, false, false, false), CheckImageBinary::New(1),
                CheckImageCompatible::New(1, 0, 4)})
        .Make({MakeImageCompatible::New(2, 0, 4, options, 0x16)})
        .PreExecute({CheckImageCompatible::New(2, 0, 4)});
    return chain;
}

void FillChains()
{
    Morphology::Detail::ScalarToSameChain().AssignTo(WhiteTophat, BlackTophat);
    Morphology::Detail::ToCategoryChain(L"Image.Category.Label", false).AssignTo(CatchmentBasins);
    Morphology::Detail::ToCategoryChain(L"Image.Category.Binary", false).AssignTo(Watershed);
    SeededChain(L"Image.Category.Label").AssignTo(SeededCatchmentBasins);
    SeededChain(L"Image.Category.Binary").AssignTo(SeededWatershed);
    Morphology::Detail::BinaryToSameChain().AssignTo(SplitConvex);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Segmentation::Functions
