#include "Quilon_/ObjectSets/Edgels/Grouping/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Edgels::Grouping::Functions {

Function1 EdgelNeighbors(L"EdgelNeighbors");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillEdgelsGroupingChains()
{
    // The neighbours of each edgel, listed under its key.
    RuleChain neighbours;
    neighbours.Check({Spatial(0), KeyVector(1), SameAttributeKeys(1, 0, 11)});
    neighbours.AssignTo(EdgelNeighbors.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    edgelsGroupingChains(&FillEdgelsGroupingChains);

} // namespace

} // namespace Quilon_::ObjectSets::Edgels::Grouping::Functions
