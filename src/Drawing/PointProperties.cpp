#include "Quilon_/Drawing/PointProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IPointProperties, L"Quilon_::Drawing::IPointProperties", IGraphicProperties)

namespace PointProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<IPointProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace PointProperties

} // namespace Quilon_::Drawing
