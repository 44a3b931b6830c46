#include "Quilon_/Images/Logic/Functions.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Logic::Functions {

Function<void(Image, Image, Image)> And(L"And");
Function<void(Image, Image, Image)> Or(L"Or");
Function<void(Image, Image, Image)> XOr(L"XOr");
Function<void(Image, Image, Image)> XNOr(L"XNOr");
Function<void(Image, Image, Image)> NAnd(L"NAnd");
Function<void(Image, Image, Image)> NOr(L"NOr");
Function<void(Image, Image, Image)> Difference(L"Difference");
Function<void(Image, Image)> Not(L"Not");
Function<void(Image, Image)> BitNot(L"BitNot");
Function3 BitAnd(L"BitAnd");
Function3 BitOr(L"BitOr");
Function3 BitXOr(L"BitXOr");
Function3 BitXNOr(L"BitXNOr");
Function3 BitDifference(L"BitDifference");
Function<void(Image, Image, std::int64_t)> LeftShift(L"LeftShift");
Function<void(Image, Image, std::int64_t)> RightShift(L"RightShift");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    // Outputs keep the first input's type: a binary result stays 8-bit.
    RuleChain boolean;
    boolean.Check({CheckImageBinary::New(0), CheckImageBinary::New(1), CheckImageCompatible::New(1, 0, 0xC)})
        .Make({MakeImageCompatible::New(2, 0, 0x1C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xC)});
    boolean.AssignTo(And, Or, XOr, XNOr, NAnd, NOr, Difference);

    RuleChain negation;
    negation.Check({CheckImageBinary::New(0)})
        .Make({MakeImageCompatible::New(1, 0, 0x1C, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xC)});
    negation.AssignTo(Not);

    RuleChain bitwise = boolean.Clone();
    bitwise.Check({CheckImageScalar::New(0, true, false, false)});
    bitwise.AssignTo(BitAnd.Overload<0>(), BitOr.Overload<0>(), BitXOr.Overload<0>(), BitXNOr.Overload<0>(),
                     BitDifference.Overload<0>());

    RuleChain bitwiseImages = bitwise.Clone();
    bitwiseImages.Check({CheckImageScalar::New(0, true, false, false),
                         CheckImageScalar::New(1, true, false, false), CheckImageCompatible::New(1, 0, 4)});
    bitwiseImages.AssignTo(BitAnd.Overload<1>(), BitOr.Overload<1>(), BitXOr.Overload<1>(),
                           BitXNOr.Overload<1>(), BitDifference.Overload<1>());

    // LeftShift takes the chain of its mirror image.
    RuleChain oneImage = negation.Clone();
    oneImage.Check({CheckImageScalar::New(0, true, false, false)});
    oneImage.AssignTo(BitNot, RightShift, LeftShift);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Logic::Functions
