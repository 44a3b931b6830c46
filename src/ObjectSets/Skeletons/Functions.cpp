#include "Quilon_/ObjectSets/Skeletons/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Skeletons::Functions {

Operator<void(Set, Set, double, System::Pointer<IAttribute, 0>)> Filter(L"Filter");
Function1 Skeleton(L"Skeleton");
Function2 TreeSkeleton(L"TreeSkeleton");
Operator<void(Set, const Key&)> TreeSkeletonSetRoot(L"TreeSkeletonSetRoot");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillSkeletonsChains()
{
    // The skeleton tree of each bitmap shape.
    RuleChain trees;
    trees.Check({Spatial(0), BitmapCells(0, 0)});
    trees.AssignTo(TreeSkeleton.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library> skeletonsChains(&FillSkeletonsChains);

} // namespace

} // namespace Quilon_::ObjectSets::Skeletons::Functions
