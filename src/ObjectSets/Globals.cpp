#include "Quilon_/ObjectSets/Globals.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Initializer.h"

namespace Quilon_::ObjectSets::Globals {

// What the main thread sets (the libraries' start-up code) is what every
// later thread starts from; the factory table is cloned for each thread.
QUILON_DEFINE_SETTING(AttributeFactories, SetAttributeFactories, ClearAttributeFactories,
                      System::Ref<IAttributeFactoryDictionary>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(CaseSensitiveAttributes, SetCaseSensitiveAttributes, ClearCaseSensitiveAttributes,
                      false, System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(PrefixMeasurementAttributes, SetPrefixMeasurementAttributes,
                      ClearPrefixMeasurementAttributes, true, System::gvsPerThreadFromMain)

void ClearCollectionAttributeFactories()
{
    System::Pointer<IAttributeFactoryDictionary, 0> table = AttributeFactories();
    if (table)
        table->Clear();
}

namespace {

// Settings live from library start to library end: the tables hold
// factories of libraries that are about to be unloaded.
void ClearObjectSetGlobals()
{
    ClearAttributeFactories();
    ClearCaseSensitiveAttributes();
    ClearPrefixMeasurementAttributes();
}

const System::Template::Initializer<::Library> objectSetGlobalsLifetime(nullptr, &ClearObjectSetGlobals,
                                                                        0.2f);

} // namespace

} // namespace Quilon_::ObjectSets::Globals
