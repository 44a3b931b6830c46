#include "Quilon_/ObjectSets/Edgels/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Edgels::Generation::Functions {

Function1 EdgesToEdgels(L"EdgesToEdgels");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillEdgelsGenerationChains()
{
    RuleChain intoAttribute;
    intoAttribute.Check({Spatial(1)});
    intoAttribute.AssignTo(EdgesToEdgels.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    edgelsGenerationChains(&FillEdgelsGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Edgels::Generation::Functions
