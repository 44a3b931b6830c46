#include "Quilon_/Drawing/ThreeD/Axes.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IAxes, L"Quilon_::Drawing::ThreeD::IAxes", System::Interface)

Axes::Factory Axes::New;

} // namespace Quilon_::Drawing::ThreeD
