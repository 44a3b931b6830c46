#include "Quilon_/Images/Morphology/Filtering/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Filtering::Functions {

Function1 AlternateSequential(L"AlternateSequential");
Function2 Automedian(L"Automedian");

namespace {

void FillChains()
{
    Morphology::Detail::ScalarToSameChain().AssignTo(AlternateSequential, Automedian);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Filtering::Functions
