#include "Quilon_/ObjectSets/Bitmaps/Logic/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Bitmaps::Logic::Functions {

Function1 And(L"And");
Function1 Difference(L"Difference");
Function1 Or(L"Or");
Function2 Overlap(L"Overlap");
Function1 XOr(L"XOr");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillBitmapsLogicChains()
{
    // Shapes combined key by key: the second operand has the keys of the
    // first, and so has the result unless the first is empty.
    RuleChain combine;
    combine.Check(
        {Spatial(0), Spatial(1), Spatial(2), SameAttributeKeys(1, 0, 3), SameAttributeKeys(2, 0, 11)});
    combine.AssignTo(And.Overload<0>(), Or.Overload<0>(), XOr.Overload<0>(), Difference.Overload<0>());

    RuleChain combineSets;
    combineSets.Check({SameObjectKeys(1, 0, 3), SameObjectKeys(2, 0, 11)});
    combineSets.AssignTo(And.Overload<1>(), Or.Overload<1>(), XOr.Overload<1>(), Difference.Overload<1>());

    // For each shape of the first, the keys of the shapes of the second
    // that it meets: a key-vector column with the first's keys.
    RuleChain overlap;
    overlap.Check({Spatial(0), Spatial(1), KeyVector(2), SameAttributeKeys(2, 0, 3)});
    overlap.AssignTo(Overlap.Overload<0>());

    // The same, with the shares of overlap in a float-vector column.
    RuleChain overlapShares;
    overlapShares.Check({Spatial(0), Spatial(1), KeyVector(2), FloatVector(3), SameAttributeKeys(2, 0, 3),
                         SameAttributeKeys(3, 0, 3)});
    overlapShares.AssignTo(Overlap.Overload<1>());

    RuleChain overlapSets;
    overlapSets.Check({SameObjectKeys(2, 0, 11)});
    overlapSets.AssignTo(Overlap.Overload<2>());
}

const System::Functions::Template::ChainsInitializer<::Library> bitmapsLogicChains(&FillBitmapsLogicChains);

} // namespace

} // namespace Quilon_::ObjectSets::Bitmaps::Logic::Functions
