#include "Quilon_/ObjectSets/Chains/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Chains::Generation::Functions {

Function1 BitmapsToChains(L"BitmapsToChains");
Function2 EdgelsToChains(L"EdgelsToChains");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillChainsGenerationChains()
{
    // Contours of bitmap shapes, one chain per shape.
    RuleChain contours;
    contours.Check({Spatial(0), BitmapCells(0, 0), Spatial(1), SameAttributeKeys(1, 0, 11)});
    contours.AssignTo(BitmapsToChains.Overload<0>(), BitmapsToChains.Overload<1>());

    // (edgels, their directions, result): the directions belong to the
    // edgels.
    RuleChain linkEdgels;
    linkEdgels.Check({Spatial(0), Spatial(2), SameAttributeKeys(1, 0, 3)});
    linkEdgels.AssignTo(EdgelsToChains.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    chainsGenerationChains(&FillChainsGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Chains::Generation::Functions
