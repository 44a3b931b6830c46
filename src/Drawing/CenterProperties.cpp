#include "Quilon_/Drawing/CenterProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(ICenterProperties, L"Quilon_::Drawing::ICenterProperties", IGraphicProperties)

namespace CenterProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<ICenterProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace CenterProperties

} // namespace Quilon_::Drawing
