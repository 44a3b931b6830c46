#include "Quilon_/Geometry/StructuringElement.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IStructuringElement, L"Quilon_::Geometry::IStructuringElement",
                             System::Interface)

StructuringElement::Factory StructuringElement::New;

} // namespace Quilon_::Geometry
