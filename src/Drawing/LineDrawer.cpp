#include "Quilon_/Drawing/LineDrawer.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(ILineDrawer, L"Quilon_::Drawing::ILineDrawer", System::Interface)

LineDrawer::Factory LineDrawer::New;

} // namespace Quilon_::Drawing
