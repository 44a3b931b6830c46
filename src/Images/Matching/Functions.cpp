#include "Quilon_/Images/Matching/Functions.h"

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Matching/Records.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Matching::Functions {

Function7 AutoCorrelate(L"AutoCorrelate");
Function<void(Image, Image, System::Ref<::Quilon_::Geometry::ICoordinates>, double)>
    Cooccurrence(L"Cooccurrence");
Function1 Correlate(L"Correlate");
Function6 CrossCorrelate(L"CrossCorrelate");
Function4 HoughCirclesAccumulator(L"HoughCirclesAccumulator");
Function5 HoughLinesAccumulator(L"HoughLinesAccumulator");
Function3 Register(L"Register");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

// Correlation scores are fractions whatever the input: float, or a wider
// type that holds the input's.
MakeImageOptions Scores()
{
    MakeImageOptions options;
    options.Set(TypeOptions(System::ntFloat, false));
    return options;
}

void FillChains()
{
    RuleChain planes;
    planes.Check({CheckImageScalar::New(0, false, true, false), CheckImageDimension::New(0, 2, idrEqual)});
    planes.AssignTo(AutoCorrelate, CrossCorrelate, HoughCirclesAccumulator, HoughLinesAccumulator);

    RuleChain registration;
    registration.PreExecute({CheckImageCompatible::New(1, 0, 1)});
    registration.AssignTo(Register);

    RuleChain cooccurrence;
    cooccurrence.Make({MakeImageCompatible::New(1, 0, 3, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 3)});
    cooccurrence.AssignTo(Cooccurrence);

    RuleChain withKernel;
    withKernel.Make({MakeImageCompatible::New(1, 0, 0xF, Scores(), 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 7)});
    withKernel.AssignTo(Correlate.Overload<0>());

    RuleChain withImage;
    withImage.Check({CheckImageCompatible::New(1, 0, 3)})
        .Make({MakeImageCompatible::New(2, 0, 0xF, Scores(), 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 7)});
    withImage.AssignTo(Correlate.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Matching::Functions
