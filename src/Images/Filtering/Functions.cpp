#include "Quilon_/Images/Filtering/Functions.h"

#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Filtering::Functions {

System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> Box(L"Box");
Function1 Convolve(L"Convolve");
Function9 Gaussian(L"Gaussian");
Function10 Kriging(L"Kriging");
Function6 LowStop(L"LowStop");
Function4 Median(L"Median");
Function5 Mode(L"Mode");
Function3 RankValue(L"RankValue");
System::Functions::Template::Function<void (*)(Image, Image, std::int64_t, float, float)>
    Weymouth(L"Weymouth");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    // A filter's output is made after its source as an erosion's is: same
    // axes, size and category, a type that holds the source's.
    RuleChain filter;
    filter.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)});
    filter.AssignTo(Box, Convolve, Gaussian, LowStop, Median, Mode, RankValue, Weymouth);

    // Kriging: (source, binary mask of the known samples, destination).
    RuleChain kriging;
    kriging.Check({CheckImageScalar::New(0, false, false, false), CheckImageBinary::New(1)})
        .Make({MakeImageCompatible::New(2, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xF)});
    kriging.AssignTo(Kriging);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Filtering::Functions
