// How arrows end and what they show beside them: heads at either end,
// their size, and labels of length and angle for measuring arrows.
//
//   Ref<Drawing::IArrowProperties> a = Drawing::ArrowProperties::New();
//   a->SetStartStyle(Drawing::asNone);
//   a->SetEndStyle(Drawing::asClosed);
//   a->SetShowLength(true);
#pragma once

#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API IArrowProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(IArrowProperties)
public:
    virtual ArrowStyleEnum StartStyle() = 0;
    virtual void SetStartStyle(ArrowStyleEnum style) = 0;
    virtual ArrowStyleEnum EndStyle() = 0;
    virtual void SetEndStyle(ArrowStyleEnum style) = 0;
    // Along the shaft, in device pixels.
    virtual double HeadLength() = 0;
    virtual void SetHeadLength(double length) = 0;
    // Across the shaft, in device pixels.
    virtual double HeadWidth() = 0;
    virtual void SetHeadWidth(double width) = 0;
    virtual bool HeadFilled() = 0;
    virtual void SetHeadFilled(bool filled) = 0;
    virtual bool ShowLength() = 0;
    virtual void SetShowLength(bool show) = 0;
    virtual bool ShowAngle() = 0;
    virtual void SetShowAngle(bool show) = 0;
    // The distance of the labels from the shaft, in device pixels.
    virtual double LabelOffset() = 0;
    virtual void SetLabelOffset(double offset) = 0;
};

namespace ArrowProperties {
using Factory = System::Functions::Template::Factory<System::Ref<IArrowProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<IArrowProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<IArrowProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace ArrowProperties

} // namespace Quilon_::Drawing
