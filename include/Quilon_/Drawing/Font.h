// Fonts of texts drawn over images: a family, a size and a style. Which
// glyphs appear is the rendering library's business.
//
//   Ref<Drawing::IFont> f = Drawing::Font::New(L"Sans", 10.0);
//   f->SetBold(true);
//   f->Description();    // "Sans 10 bold"
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <string>

namespace Quilon_::Drawing {

class QUILON_API IFont : public virtual System::Interface {
    QUILON_INTERFACE(IFont)
public:
    virtual std::wstring FamilyName() = 0;
    virtual void SetFamilyName(const std::wstring& name) = 0;
    // In points.
    virtual double Size() = 0;
    virtual void SetSize(double points) = 0;
    virtual bool Bold() = 0;
    virtual void SetBold(bool bold) = 0;
    virtual bool Italic() = 0;
    virtual void SetItalic(bool italic) = 0;
    virtual bool Underline() = 0;
    virtual void SetUnderline(bool underline) = 0;
    virtual bool Strikeout() = 0;
    virtual void SetStrikeout(bool strikeout) = 0;
    // Family, size and the styles that are set, separated by spaces, as
    // font choosers show it.
    virtual std::wstring Description() = 0;
};

namespace Font {
// New(family, size in points).
using Factory = System::Functions::Template::Factory<System::Ref<IFont>(const std::wstring&, double)>;
extern QUILON_API Factory New;
} // namespace Font

} // namespace Quilon_::Drawing
