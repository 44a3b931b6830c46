#include "Quilon_/Images/Morphology/Enhancement/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Enhancement::Functions {

Function1 Contrast(L"Contrast");

namespace {

void FillChains()
{
    Morphology::Detail::ScalarToSameChain().AssignTo(Contrast);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Enhancement::Functions
