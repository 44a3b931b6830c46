#include "Quilon_/Images/Morphology/Features/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Features::Functions {

Function1 LocalMaxima(L"LocalMaxima");
Function1 LocalMinima(L"LocalMinima");
Function2 RegionalMaxima(L"RegionalMaxima");
Function2 RegionalMinima(L"RegionalMinima");
Function3 UltimateErodedSet(L"UltimateErodedSet");

namespace {

void FillChains()
{
    const System::Functions::RuleChain extrema =
        Morphology::Detail::ToCategoryChain(L"Image.Category.Binary", false);
    extrema.AssignTo(LocalMaxima, LocalMinima, RegionalMaxima, RegionalMinima);
    Morphology::Detail::ToCategoryChain(L"Image.Category.Binary", true).AssignTo(UltimateErodedSet);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Features::Functions
