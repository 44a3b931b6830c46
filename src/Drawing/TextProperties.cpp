#include "Quilon_/Drawing/TextProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(ITextProperties, L"Quilon_::Drawing::ITextProperties", IGraphicProperties)

namespace TextProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<ITextProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace TextProperties

} // namespace Quilon_::Drawing
