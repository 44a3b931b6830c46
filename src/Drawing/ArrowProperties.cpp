#include "Quilon_/Drawing/ArrowProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IArrowProperties, L"Quilon_::Drawing::IArrowProperties", IGraphicProperties)

namespace ArrowProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<IArrowProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace ArrowProperties

} // namespace Quilon_::Drawing
