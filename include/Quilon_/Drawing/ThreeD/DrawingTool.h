// The drawing tool of 3-D scenes: draws shapes on the picked surfaces of a
// scene. The concrete tool comes with a 3-D viewer library.
//
//   Ref<Drawing::ThreeD::IDrawingTool> tool = Drawing::ThreeD::DrawingTool::New();
//   tool->SetDrawingMode(Drawing::ThreeD::dmPolyline);
#pragma once

#include "Quilon_/Drawing/ThreeD/DrawingMode.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing::ThreeD {

class QUILON_API IDrawingTool : public virtual System::Interface {
    QUILON_INTERFACE(IDrawingTool)
public:
    virtual DrawingModeEnum DrawingMode() = 0;
    virtual void SetDrawingMode(DrawingModeEnum mode) = 0;
    virtual PostDrawingModeEnum PostDrawingMode() = 0;
    virtual void SetPostDrawingMode(PostDrawingModeEnum mode) = 0;
};

namespace DrawingTool {
using Factory = System::Functions::Template::Factory<System::Ref<IDrawingTool>()>;
extern QUILON_API Factory New;
} // namespace DrawingTool

} // namespace Quilon_::Drawing::ThreeD
