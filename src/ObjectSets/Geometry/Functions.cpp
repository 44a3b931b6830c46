#include "Quilon_/ObjectSets/Geometry/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Rotation.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Geometry::Functions {

Function1 AffineMap(L"AffineMap");
Function2 Rotate(L"Rotate");
Function3 Scale(L"Scale");
Function4 Translate(L"Translate");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillGeometryChains()
{
    // Bitmap shapes resampled into shapes of the same dimension and keys.
    RuleChain transformShapes;
    transformShapes.Check({Spatial(0), BitmapCells(1, 0), SameAttributeKeys(1, 0, 11)});
    transformShapes.AssignTo(AffineMap.Overload<1>(), Rotate.Overload<1>(), Scale.Overload<2>(),
                             Translate.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library> geometryChains(&FillGeometryChains);

} // namespace

} // namespace Quilon_::ObjectSets::Geometry::Functions
