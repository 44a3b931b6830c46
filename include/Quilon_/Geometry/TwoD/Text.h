// A text placed on a view: a shape so that it can be selected, moved and
// turned like the others.
//
//   Ref<Geometry::TwoD::IText> label = Geometry::TwoD::Text::New(L"cell 12", 40, 10, Geometry::Axes::aXY);
//   label->SetAngle(0.5);
#pragma once

#include "Quilon_/Drawing/Drawable.h"
#include "Quilon_/Drawing/Point.h"
#include "Quilon_/Geometry/TwoD/RotatableShape.h"

#include <string>

namespace Quilon_::Geometry::TwoD {

class QUILON_API IText : public virtual IShape,
                         public virtual Drawing::IDrawable,
                         public virtual Windows::IViewable,
                         public virtual IRotatableShape {
    QUILON_INTERFACE(IText)
public:
    virtual std::wstring Text() = 0;
    virtual void SetText(const std::wstring& text) = 0;
    // The anchor: the top left corner of the unturned text.
    virtual float X() = 0;
    virtual void SetX(float x) = 0;
    virtual float Y() = 0;
    virtual void SetY(float y) = 0;
    // The height of a line, in the units of the coordinates.
    virtual float FontSize() = 0;
    virtual void SetFontSize(float size) = 0;
    // The width and height that the text takes as drawn.
    virtual Drawing::Point<float> Extent() = 0;
};

namespace Text {
// New(axes) is an empty text at the origin; New(text, x, y, axes).
using Factory = System::Functions::Template::Factory<System::Ref<IText>(Geometry::Axes),
                                                     System::Ref<IText>(const std::wstring&, float, float,
                                                                        Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace Text

} // namespace Quilon_::Geometry::TwoD
