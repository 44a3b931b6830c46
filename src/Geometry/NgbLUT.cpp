#include "Quilon_/Geometry/NgbLUT.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(INgbLUT, L"Quilon_::Geometry::INgbLUT", System::Interface)

NgbLUT::Factory NgbLUT::New;

} // namespace Quilon_::Geometry
