#include "Quilon_/ObjectSets/Utility/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Utility::Functions {

Operator<void(Objects, Objects, Objects)> Append(L"Append");
Function1 Copy(L"Copy");
Operator<void(Objects, Objects, Objects)> Merge(L"Merge");
Operator<void(Attribute, const System::Any&)> Set(L"Set");
Function2 ToImage(L"ToImage");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillUtilityChains()
{
    // Shapes drawn with the value of a scalar column under the same keys,
    // or with one value.
    RuleChain drawColumn;
    drawColumn.Check({Spatial(0), Scalar(2), SameAttributeKeys(2, 0, 3)});
    drawColumn.AssignTo(ToImage.Overload<0>());

    RuleChain drawValue;
    drawValue.Check({Spatial(0)});
    drawValue.AssignTo(ToImage.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library> utilityChains(&FillUtilityChains);

} // namespace

} // namespace Quilon_::ObjectSets::Utility::Functions
