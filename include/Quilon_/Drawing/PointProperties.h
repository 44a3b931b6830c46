// How single points are marked.
//
//   Ref<Drawing::IPointProperties> p = Drawing::PointProperties::New();
//   p->SetSymbol(Drawing::psCircle);
//   p->SetSymbolSize(7.0);
#pragma once

#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API IPointProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(IPointProperties)
public:
    virtual PointSymbolEnum Symbol() = 0;
    virtual void SetSymbol(PointSymbolEnum symbol) = 0;
    // In device pixels.
    virtual double SymbolSize() = 0;
    virtual void SetSymbolSize(double size) = 0;
    // Shows the point's name beside it.
    virtual bool ShowLabel() = 0;
    virtual void SetShowLabel(bool show) = 0;
    virtual bool ShowCoordinates() = 0;
    virtual void SetShowCoordinates(bool show) = 0;
};

namespace PointProperties {
using Factory = System::Functions::Template::Factory<System::Ref<IPointProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<IPointProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<IPointProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace PointProperties

} // namespace Quilon_::Drawing
