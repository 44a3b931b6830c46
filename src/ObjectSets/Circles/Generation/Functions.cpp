#include "Quilon_/ObjectSets/Circles/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Circles::Generation::Functions {

Operator<void(Attribute, Attribute, Attribute, double, std::int64_t)> BitmapsToCircles(L"BitmapsToCircles");
Function1 HoughCircles(L"HoughCircles");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillCirclesGenerationChains()
{
    // (bitmap shapes, centres, radii): one circle per shape.
    RuleChain fit;
    fit.Check({Spatial(0), BitmapCells(0, 0), Spatial(1), Scalar(2), SameAttributeKeys(1, 0, 11),
               SameAttributeKeys(2, 0, 11)});
    fit.AssignTo(BitmapsToCircles);
}

const System::Functions::Template::ChainsInitializer<::Library>
    circlesGenerationChains(&FillCirclesGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Circles::Generation::Functions
