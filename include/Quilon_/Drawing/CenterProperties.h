// The mark of a shape's centre and, for shapes that have them, its
// principal axes.
//
//   Ref<Drawing::ICenterProperties> c = Drawing::CenterProperties::New();
//   c->SetShowCenter(true);
//   c->SetCenterSymbol(Drawing::psCross);
#pragma once

#include "Quilon_/Drawing/Color.h"
#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API ICenterProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(ICenterProperties)
public:
    virtual bool ShowCenter() = 0;
    virtual void SetShowCenter(bool show) = 0;
    virtual PointSymbolEnum CenterSymbol() = 0;
    virtual void SetCenterSymbol(PointSymbolEnum symbol) = 0;
    // The extent of the symbol, in device pixels.
    virtual double CenterSize() = 0;
    virtual void SetCenterSize(double size) = 0;
    virtual Color CenterColor() = 0;
    virtual void SetCenterColor(Color color) = 0;
    virtual bool ShowAxes() = 0;
    virtual void SetShowAxes(bool show) = 0;
    // The length of each drawn axis as a share of the shape's extent along
    // it; 1 reaches the outline.
    virtual double AxesLength() = 0;
    virtual void SetAxesLength(double share) = 0;
};

namespace CenterProperties {
using Factory = System::Functions::Template::Factory<System::Ref<ICenterProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<ICenterProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<ICenterProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace CenterProperties

} // namespace Quilon_::Drawing
