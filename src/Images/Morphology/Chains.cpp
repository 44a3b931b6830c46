#include "Images/Morphology/Chains.h"

#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"

namespace Quilon_::Images::Morphology::Detail {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

RuleChain SameShapeChain()
{
    RuleChain chain;
    chain.Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)});
    return chain;
}

RuleChain ScalarToSameChain()
{
    RuleChain chain = SameShapeChain().Clone();
    chain.Check({CheckImageScalar::New(0, false, false, false)});
    return chain;
}

RuleChain BinaryToSameChain()
{
    RuleChain chain = SameShapeChain().Clone();
    chain.Check({CheckImageBinary::New(0)});
    return chain;
}

RuleChain ToCategoryChain(const wchar_t* category, bool binaryInput)
{
    MakeImageOptions options;
    options.Set(System::LIString(category));
    RuleChain chain;
    if (binaryInput)
        chain.Check({CheckImageScalar::New(0, false, false, false), CheckImageBinary::New(0)});
    else
        chain.Check({CheckImageScalar::New(0, false, false, false)});
    chain.Make({MakeImageCompatible::New(1, 0, 4, options, 0x16)})
        .PreExecute({CheckImageCompatible::New(1, 0, 4)});
    return chain;
}

} // namespace Quilon_::Images::Morphology::Detail
