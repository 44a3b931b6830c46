#include "Quilon_/Drawing/ThreeD/DrawingTool.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IDrawingTool, L"Quilon_::Drawing::ThreeD::IDrawingTool", System::Interface)

DrawingTool::Factory DrawingTool::New;

} // namespace Quilon_::Drawing::ThreeD
