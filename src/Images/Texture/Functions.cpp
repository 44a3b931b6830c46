#include "Quilon_/Images/Texture/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Texture::Functions {

Function<void(Image, Image)> LawsTexture(L"LawsTexture");

namespace {

using namespace Images::Functions::Rules;

// One plane of real samples; the output's bands are the implementation's.
void FillChains()
{
    System::Functions::RuleChain()
        .Check({CheckImageScalar::New(0, false, true, false), CheckImageDimension::New(0, 2, idrEqual)})
        .AssignTo(LawsTexture);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Texture::Functions
