// What an ellipse shows besides its outline.
//
//   Ref<Drawing::IEllipseProperties> e = Drawing::EllipseProperties::New();
//   e->SetShowAxes(true);
#pragma once

#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class QUILON_API IEllipseProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(IEllipseProperties)
public:
    // The major and the minor axis.
    virtual bool ShowAxes() = 0;
    virtual void SetShowAxes(bool show) = 0;
    virtual bool ShowFoci() = 0;
    virtual void SetShowFoci(bool show) = 0;
};

namespace EllipseProperties {
using Factory = System::Functions::Template::Factory<System::Ref<IEllipseProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<IEllipseProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<IEllipseProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace EllipseProperties

} // namespace Quilon_::Drawing
