// The pen and the brush: what every outline and area is drawn with.
//
//   Ref<Drawing::IStandardProperties> p = Drawing::StandardProperties::New();
//   p->PenColor();                         // black, from the defaults
//   p->SetFillStyle(Drawing::fsSolid);
//   p->SetFillColor(Drawing::Color(0, 255, 0, 128));
//   Drawing::StandardProperties::SetDefaultValues(p);   // this thread's new objects start so
//
// The defaults are a per-thread setting: a thread's first read clones the
// process default, which the implementation library sets at start-up
// (black pen of width 1, solid line, no fill).
#pragma once

#include "Quilon_/Drawing/Color.h"
#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API IStandardProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(IStandardProperties)
public:
    virtual Color PenColor() = 0;
    virtual void SetPenColor(Color color) = 0;
    // In device pixels; 0 draws the thinnest line the device has.
    virtual double PenWidth() = 0;
    virtual void SetPenWidth(double width) = 0;
    virtual LineStyleEnum LineStyle() = 0;
    virtual void SetLineStyle(LineStyleEnum style) = 0;
    virtual Color FillColor() = 0;
    virtual void SetFillColor(Color color) = 0;
    virtual FillStyleEnum FillStyle() = 0;
    virtual void SetFillStyle(FillStyleEnum style) = 0;
    // The pattern of fsHatch.
    virtual HatchStyleEnum HatchStyle() = 0;
    virtual void SetHatchStyle(HatchStyleEnum style) = 0;
    // The colour of the gaps of dashes and hatches, when BackMode is opaque.
    virtual Color BackColor() = 0;
    virtual void SetBackColor(Color color) = 0;
    virtual BackModeEnum BackMode() = 0;
    virtual void SetBackMode(BackModeEnum mode) = 0;
    virtual RasterOpEnum RasterOp() = 0;
    virtual void SetRasterOp(RasterOpEnum op) = 0;
    // 0 (invisible) to 1 (opaque), applied over the alpha of the colours.
    virtual double Opacity() = 0;
    virtual void SetOpacity(double opacity) = 0;
    virtual bool Antialiased() = 0;
    virtual void SetAntialiased(bool antialiased) = 0;
};

namespace StandardProperties {
using Factory = System::Functions::Template::Factory<System::Ref<IStandardProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<IStandardProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<IStandardProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace StandardProperties

} // namespace Quilon_::Drawing
