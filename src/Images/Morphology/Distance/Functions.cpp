#include "Quilon_/Images/Morphology/Distance/Functions.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Morphology::Distance::Functions {

Function1 Distance(L"Distance");

namespace {

using namespace Images::Functions::Rules;

void FillChains()
{
    MakeImageOptions grey;
    grey.Set(System::LIString(L"Image.Category.Grey"));
    System::Functions::RuleChain distance;
    distance.Check({CheckImageBinary::New(0)}).Make({MakeImageCompatible::New(1, 0, 4, grey, 0x16)});
    distance.AssignTo(Distance);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Distance::Functions
