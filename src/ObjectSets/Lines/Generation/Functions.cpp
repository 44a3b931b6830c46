#include "Quilon_/ObjectSets/Lines/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Lines::Generation::Functions {

Function1 BitmapLineFit(L"BitmapLineFit");
Function1 ChainLineFit(L"ChainLineFit");
Function2 EdgesToLines(L"EdgesToLines");
Function3 HoughLines(L"HoughLines");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillLinesGenerationChains()
{
    // (shapes, lines, residuals): one line per shape.
    RuleChain bitmapFit;
    bitmapFit.Check({Spatial(0), BitmapCells(0, 0), Spatial(1), Scalar(2), SameAttributeKeys(1, 0, 11),
                     SameAttributeKeys(2, 0, 11)});
    bitmapFit.AssignTo(BitmapLineFit.Overload<0>());

    RuleChain chainFit;
    chainFit.Check(
        {Spatial(0), Spatial(1), Scalar(2), SameAttributeKeys(1, 0, 11), SameAttributeKeys(2, 0, 11)});
    chainFit.AssignTo(ChainLineFit.Overload<0>());

    RuleChain intoAttribute;
    intoAttribute.Check({Spatial(1)});
    intoAttribute.AssignTo(EdgesToLines.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    linesGenerationChains(&FillLinesGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Lines::Generation::Functions

namespace Quilon_::System {

Any ToAny(ObjectSets::Lines::Generation::AccumulationMethodEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
