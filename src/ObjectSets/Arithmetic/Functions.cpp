#include "Quilon_/ObjectSets/Arithmetic/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Arithmetic::Functions {

Function1 Add(L"Add");
Function2 Subtract(L"Subtract");
Function1 Multiply(L"Multiply");
Function2 Divide(L"Divide");
Function1 Maximum(L"Maximum");
Function1 Minimum(L"Minimum");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillArithmeticChains()
{
    // Both operands and the result are scalar columns; the right operand
    // and the result have the keys of the left (the result none to check
    // while the left is empty).
    RuleChain twoColumns;
    twoColumns.Check(
        {Scalar(0), Scalar(1), Scalar(2), SameAttributeKeys(1, 0, 3), SameAttributeKeys(2, 0, 11)});
    twoColumns.AssignTo(Add.Overload<0>(), Subtract.Overload<0>(), Multiply.Overload<0>(),
                        Divide.Overload<0>(), Maximum.Overload<0>(), Minimum.Overload<0>());

    RuleChain columnAndConstant;
    columnAndConstant.Check({Scalar(0), Scalar(2), SameAttributeKeys(2, 0, 11)});
    columnAndConstant.AssignTo(Add.Overload<1>(), Subtract.Overload<1>(), Multiply.Overload<1>(),
                               Divide.Overload<1>(), Maximum.Overload<1>(), Minimum.Overload<1>());

    RuleChain constantAndColumn;
    constantAndColumn.Check({Scalar(1)});
    constantAndColumn.AssignTo(Subtract.Overload<2>(), Divide.Overload<2>());
}

const System::Functions::Template::ChainsInitializer<::Library> arithmeticChains(&FillArithmeticChains);

} // namespace

} // namespace Quilon_::ObjectSets::Arithmetic::Functions
