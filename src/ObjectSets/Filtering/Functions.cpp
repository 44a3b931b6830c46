#include "Quilon_/ObjectSets/Filtering/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Filtering::Functions {

Function1 Filter(L"Filter");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillFilteringChains()
{
    // Selection by the values of a scalar column.
    RuleChain byValue;
    byValue.Check({Scalar(2)});
    byValue.AssignTo(Filter.Overload<0>());
}

const System::Functions::Template::ChainsInitializer<::Library> filteringChains(&FillFilteringChains);

} // namespace

} // namespace Quilon_::ObjectSets::Filtering::Functions
