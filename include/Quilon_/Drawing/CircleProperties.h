// How circles and their arcs are drawn and labelled.
//
//   Ref<Drawing::ICircleProperties> c = Drawing::CircleProperties::New();
//   c->SetArcDrawingStyle(Drawing::adsPie);
//   c->SetStartAngle(0.0);
//   c->SetSweepAngle(90.0);    // a quarter, counter-clockwise
#pragma once

#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API ICircleProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(ICircleProperties)
public:
    virtual ArcDrawingStyleEnum ArcDrawingStyle() = 0;
    virtual void SetArcDrawingStyle(ArcDrawingStyleEnum style) = 0;
    virtual bool ShowRadius() = 0;
    virtual void SetShowRadius(bool show) = 0;
    virtual bool ShowDiameter() = 0;
    virtual void SetShowDiameter(bool show) = 0;
    // In degrees, counter-clockwise from the positive x axis.
    virtual double StartAngle() = 0;
    virtual void SetStartAngle(double degrees) = 0;
    // In degrees; 360 draws the whole circle.
    virtual double SweepAngle() = 0;
    virtual void SetSweepAngle(double degrees) = 0;
};

namespace CircleProperties {
using Factory = System::Functions::Template::Factory<System::Ref<ICircleProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<ICircleProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<ICircleProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace CircleProperties

} // namespace Quilon_::Drawing
