#include "Quilon_/Images/Color/Conversion/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Color::Conversion::Functions {

Function<void(Image, Image, DemosaicingMethodEnum)> Demosaic(L"Demosaic");

namespace {

using namespace Images::Functions::Rules;

// One band in; a colour image of its size and a type holding its samples
// out, with origin, linked data and region of interest.
void FillChains()
{
    MakeImageOptions color;
    color.Set(System::LIString(L"Image.Category.Color"));
    System::Functions::RuleChain()
        .Check({CheckImageScalar::New(0, false, true, false)})
        .Make({MakeImageCompatible::New(1, 0, mcSize | mcContainingType, color,
                                        tpOrigin | tpLinkedData | tpROI)})
        .AssignTo(Demosaic);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Color::Conversion::Functions

QUILON_DEFINE_ENUM_TEXT(Images::Color::Conversion::DemosaicingMethodEnum, Number,
                        {Images::Color::Conversion::dmNearest, L"dmNearest"},
                        {Images::Color::Conversion::dmBilinear, L"dmBilinear"},
                        {Images::Color::Conversion::dmEdgeDirected, L"dmEdgeDirected"})
