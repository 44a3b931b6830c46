#include "Quilon_/Images/EdgeDetection/Functions.h"

#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Color/ColorDistance.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageEdge.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/RuleChain.h"

QUILON_DEFINE_ENUM_TEXT(Images::EdgeDetection::EdgeTypeEnum, Number,
                        {Images::EdgeDetection::etRidge, L"etRidge"},
                        {Images::EdgeDetection::etValley, L"etValley"},
                        {Images::EdgeDetection::etRidgeAndValley, L"etRidgeAndValley"})

namespace Quilon_::Images::EdgeDetection::Functions {

Operator<void(Image, Image, System::Pointer<Color::IColorDistance, 0>,
              System::Ref<Quilon_::Geometry::IKernel>)>
    AverageColorDistanceGradient(L"AverageColorDistanceGradient");
Operator<void(Image, Image, double, double)> CannyDericheEdges(L"CannyDericheEdges");
Operator<void(Image, Image)> EdgesThin(L"EdgesThin");
Function1 MorphoGradient(L"MorphoGradient");
Operator<void(Image, Image, double)> PrewittEdges(L"PrewittEdges");
Operator<void(Image, Image, EdgeTypeEnum, double)> RidgeValleyEdges(L"RidgeValleyEdges");
Operator<void(Image, Image, double)> RobertsEdges(L"RobertsEdges");
Operator<void(Image, Image, double)> SobelEdges(L"SobelEdges");
Operator<void(Image, Image)> ZeroCrossing(L"ZeroCrossing");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    RuleChain gradient;
    gradient.Check({CheckImageScalar::New(0, false, true, false)}).Make({MakeImageEdge::New(1, 0)});
    gradient.AssignTo(SobelEdges, PrewittEdges, RobertsEdges, CannyDericheEdges, RidgeValleyEdges,
                      ZeroCrossing);

    RuleChain thin;
    thin.Check({CheckImageCategory::New(0, System::LIString(L"Image.Category.Edge"))});
    thin.AssignTo(EdgesThin);

    // A colour gradient is an edge image of the colour image's axes.
    RuleChain colour = gradient.Clone();
    colour.Check({CheckImageCategory::New(0, System::LIString(L"Image.Category.Color"))});
    colour.AssignTo(AverageColorDistanceGradient);

    // The morphological gradient keeps the source's kind, as the erosion
    // and dilation it is made of do.
    RuleChain morphological;
    morphological.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)});
    morphological.AssignTo(MorphoGradient);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::EdgeDetection::Functions
