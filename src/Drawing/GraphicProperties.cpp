#include "Quilon_/Drawing/GraphicProperties.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IGraphicProperties, L"Quilon_::Drawing::IGraphicProperties", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IPropertiesTypesProvider, L"Quilon_::Drawing::IPropertiesTypesProvider",
                             System::Interface)

} // namespace Quilon_::Drawing
