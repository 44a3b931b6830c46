#include "Quilon_/Images/Math/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageOptions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Math/MatrixRules.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Math::Functions {

Function<void(Image, Image)> ACos(L"ACos");
Function<void(Image, Image)> ASin(L"ASin");
Function<void(Image, Image)> ATan(L"ATan");
Function<void(Image, Image, ::Quilon_::Math::ComplexFacetEnum)> ComplexFacet(L"ComplexFacet");
Function<void(Image, Image)> Conjugate(L"Conjugate");
Function<void(Image, Image)> Cos(L"Cos");
Function<void(Image, Image)> Exp10(L"Exp10");
Function<void(Image, Image)> Exp(L"Exp");
Function<void(Image, Image)> ImaginaryPart(L"ImaginaryPart");
Function<void(Image, Image)> Inverse(L"Inverse");
Function<void(Image, Image)> Log10(L"Log10");
Function<void(Image, Image)> Log(L"Log");
Function<void(Image, Image)> Magnitude(L"Magnitude");
Function<void(Image, Image, System::Ref<::Quilon_::Math::IMatrixD>)> MatrixMultiply(L"MatrixMultiply");
Function<void(Image, Image)> Phase(L"Phase");
Function<void(Image, Image)> RealPart(L"RealPart");
Function<void(Image, Image)> Sin(L"Sin");
Function<void(Image, Image)> Sqr(L"Sqr");
Function<void(Image, Image)> Sqrt(L"Sqrt");
Function<void(Image, Image)> Tan(L"Tan");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

MakeImageOptions OfType(System::NumericTypeEnum type, bool exact)
{
    MakeImageOptions options;
    options.Set(TypeOptions(type, exact));
    return options;
}

void FillChains()
{
    // Closed over the input's type, as Arithmetic's Abs.
    RuleChain same;
    same.Make({MakeImageCompatible::New(1, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xC)});
    same.AssignTo(Sqr, Conjugate);

    // A type containing float and the input's: float for small integers,
    // double for wide ones, complex for complex input.
    RuleChain floating = same.Clone();
    floating.Make({MakeImageCompatible::New(1, 0, 0x2C, OfType(System::ntFloat, false), 0x1F)});
    floating.AssignTo(ACos, ASin, ATan, Cos, Exp10, Exp, Inverse, Log10, Log, Sin, Sqrt, Tan);

    // Real results of complex values: double, whatever the input.
    RuleChain real = same.Clone();
    real.Make({MakeImageCompatible::New(1, 0, 0xC, OfType(System::ntDouble, true), 0x1F)});
    real.AssignTo(ImaginaryPart, Magnitude, Phase, RealPart, ComplexFacet);

    RuleChain matrix;
    matrix.Check({Detail::CheckImageAgainstMatrix::New(0, 2)})
        .Make({Detail::MakeImageAgainstMatrix::New(1, 0, 2)});
    matrix.AssignTo(MatrixMultiply);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Math::Functions
