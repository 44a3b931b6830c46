// How texts are written: font and colour.
//
//   Ref<Drawing::ITextProperties> t = Drawing::TextProperties::New();
//   t->SetFont(Drawing::Font::New(L"Sans", 12.0));
//   t->SetTextColor(Drawing::Color(255, 255, 0));
#pragma once

#include "Quilon_/Drawing/Color.h"
#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Drawing {

class IFont;

class QUILON_API ITextProperties : public virtual IGraphicProperties {
    QUILON_INTERFACE(ITextProperties)
public:
    // Null when the device's own font is used.
    virtual System::Pointer<IFont, 0> Font() = 0;
    virtual void SetFont(System::Pointer<IFont, 0> font) = 0;
    virtual Color TextColor() = 0;
    virtual void SetTextColor(Color color) = 0;
};

namespace TextProperties {
using Factory = System::Functions::Template::Factory<System::Ref<ITextProperties>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<ITextProperties> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<ITextProperties> value);
QUILON_API void ClearDefaultValues();
} // namespace TextProperties

} // namespace Quilon_::Drawing
