#include "Quilon_/Drawing/CircleProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(ICircleProperties, L"Quilon_::Drawing::ICircleProperties", IGraphicProperties)

namespace CircleProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<ICircleProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace CircleProperties

} // namespace Quilon_::Drawing
