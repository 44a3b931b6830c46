#include "Quilon_/ObjectSets/Polygons/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Polygons::Generation::Functions {

Function1 ConvexHull(L"ConvexHull");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillPolygonsGenerationChains()
{
    RuleChain hulls;
    hulls.Check({Spatial(0), Spatial(1), SameAttributeKeys(1, 0, 11)});
    hulls.AssignTo(ConvexHull.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    polygonsGenerationChains(&FillPolygonsGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Polygons::Generation::Functions
