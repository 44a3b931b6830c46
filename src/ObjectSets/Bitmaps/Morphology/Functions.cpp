#include "Quilon_/ObjectSets/Bitmaps/Morphology/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Bitmaps::Morphology::Functions {

Function1 Close(L"Close");
Function1 Dilate(L"Dilate");
Function1 Erode(L"Erode");
Function2 HoleFill(L"HoleFill");
Function1 Open(L"Open");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillBitmapsMorphologyChains()
{
    // Bitmap shapes from spatial ones, of the same dimension and keys.
    RuleChain shapeToBitmap;
    shapeToBitmap.Check({Spatial(0), BitmapCells(1, 0), SameAttributeKeys(1, 0, 11)});
    shapeToBitmap.AssignTo(Erode.Overload<0>(), Erode.Overload<1>(), Dilate.Overload<0>(),
                           Dilate.Overload<1>(), Open.Overload<0>(), Open.Overload<1>(), Close.Overload<0>(),
                           Close.Overload<1>(), HoleFill.Overload<0>(), HoleFill.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    bitmapsMorphologyChains(&FillBitmapsMorphologyChains);

} // namespace

} // namespace Quilon_::ObjectSets::Bitmaps::Morphology::Functions
