#include "Quilon_/Images/Arithmetic/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Arithmetic::Functions {

Function<void(Image, Image)> Abs(L"Abs");
Function1 Add(L"Add");
Function<void(Image, Image, Image, double)> Blend(L"Blend");
Function1 Divide(L"Divide");
Function<void(Image, Image)> Invert(L"Invert");
Function<void(Image, Image, System::Ref<::Quilon_::Math::IRangeD>, System::Ref<::Quilon_::Math::IRangeD>)>
    LinearScale(L"LinearScale");
Function2 Maximum(L"Maximum");
Function2 Minimum(L"Minimum");
Function1 Multiply(L"Multiply");
Function1 Subtract(L"Subtract");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    // Outputs are made after the first input, with a type containing its.
    RuleChain binary;
    binary.Make({MakeImageCompatible::New(2, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xC)});
    binary.AssignTo(Add.Overload<0>(), Subtract.Overload<0>(), Multiply.Overload<0>(), Divide.Overload<0>());

    RuleChain twoImages = binary.Clone();
    twoImages.Check({CheckImageCompatible::New(1, 0, 0x4C)});
    twoImages.AssignTo(Add.Overload<1>(), Subtract.Overload<1>(), Multiply.Overload<1>(),
                       Divide.Overload<1>(), Blend);

    RuleChain extreme = binary.Clone();
    extreme.Check({CheckImageScalar::New(0, false, false, false)});
    extreme.AssignTo(Maximum.Overload<0>(), Minimum.Overload<0>());

    RuleChain extremes = binary.Clone();
    extremes.Check({CheckImageCompatible::New(1, 0, 0x4C), CheckImageScalar::New(0, false, false, false),
                    CheckImageScalar::New(1, false, false, false)});
    extremes.AssignTo(Maximum.Overload<1>(), Minimum.Overload<1>());

    // One input, one output; LinearScale follows the family's idiom.
    RuleChain unary;
    unary.Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xC)});
    unary.AssignTo(Abs, Invert, LinearScale);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Arithmetic::Functions
