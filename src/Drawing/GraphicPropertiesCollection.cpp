#include "Quilon_/Drawing/GraphicPropertiesCollection.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IGraphicPropertiesCollection, L"Quilon_::Drawing::IGraphicPropertiesCollection",
                             System::Collections::Template::ICollection<IGraphicProperties>)

namespace GraphicPropertiesCollection {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues,
                      System::Ref<IGraphicPropertiesCollection>(), System::gvsPerThreadFromMain)

void ClearCollectionDefaultValues()
{
    System::Pointer<IGraphicPropertiesCollection, 0> defaults = DefaultValues();
    if (defaults)
        defaults->Clear();
}

} // namespace GraphicPropertiesCollection

} // namespace Quilon_::Drawing
