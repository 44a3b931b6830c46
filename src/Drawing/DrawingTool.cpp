#include "Quilon_/Drawing/DrawingTool.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IDrawingTool, L"Quilon_::Drawing::IDrawingTool", System::Interface)

DrawingTool::Factory DrawingTool::New;

} // namespace Quilon_::Drawing
