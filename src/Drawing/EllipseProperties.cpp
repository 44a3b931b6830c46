#include "Quilon_/Drawing/EllipseProperties.h"

#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IEllipseProperties, L"Quilon_::Drawing::IEllipseProperties", IGraphicProperties)

namespace EllipseProperties {

Factory New;

// Per thread, starting from what the main thread set.
QUILON_DEFINE_SETTING(DefaultValues, SetDefaultValues, ClearDefaultValues, System::Ref<IEllipseProperties>(),
                      System::gvsPerThreadFromMain)

} // namespace EllipseProperties

} // namespace Quilon_::Drawing
