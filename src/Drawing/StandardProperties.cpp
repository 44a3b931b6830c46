#include "Quilon_/Drawing/StandardProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IStandardProperties, L"Quilon_::Drawing::IStandardProperties",
                             IGraphicProperties)

namespace StandardProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<IStandardProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace StandardProperties

} // namespace Quilon_::Drawing
