#include "Quilon_/Images/Reconstruction/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Reconstruction::Functions {

Function1 MultiFocus(L"MultiFocus");

namespace {

using namespace Images::Functions::Rules;

// A stack of real planes; the outputs are planes, so no make rule shapes
// them after the stack.
void FillChains()
{
    System::Functions::RuleChain()
        .Check({CheckImageScalar::New(0, false, false, false), CheckImageDimension::New(0, 3, idrEqual)})
        .AssignTo(MultiFocus);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Reconstruction::Functions
