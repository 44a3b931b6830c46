// Fonts, behind Font::New. They only describe: glyphs are the business of
// the library that renders.
#include "Quilon_/Drawing/Font.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

#include <sstream>
#include <string>
#include <utility>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Pointer;
using System::Ref;

namespace {

class CFont : public System::Template::ObjectImpl<CFont, IFont, System::ICloneable> {
public:
    CFont(std::wstring family, double size) : m_family(std::move(family)), m_size(size) {}

    std::wstring FamilyName() override { return m_family; }
    void SetFamilyName(const std::wstring& name) override { m_family = name; }
    double Size() override { return m_size; }
    void SetSize(double points) override { m_size = points; }
    bool Bold() override { return m_bold; }
    void SetBold(bool bold) override { m_bold = bold; }
    bool Italic() override { return m_italic; }
    void SetItalic(bool italic) override { m_italic = italic; }
    bool Underline() override { return m_underline; }
    void SetUnderline(bool underline) override { m_underline = underline; }
    bool Strikeout() override { return m_strikeout; }
    void SetStrikeout(bool strikeout) override { m_strikeout = strikeout; }
    std::wstring Description() override
    {
        std::wostringstream text;
        text << m_family << L' ' << m_size;
        if (m_bold)
            text << L" bold";
        if (m_italic)
            text << L" italic";
        if (m_underline)
            text << L" underline";
        if (m_strikeout)
            text << L" strikeout";
        return text.str();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CFont(*this));
    }

private:
    CFont(const CFont& other)
        : ObjectImpl(), m_family(other.m_family), m_size(other.m_size), m_bold(other.m_bold),
          m_italic(other.m_italic), m_underline(other.m_underline), m_strikeout(other.m_strikeout)
    {
    }

    std::wstring m_family;
    double m_size;
    bool m_bold = false;
    bool m_italic = false;
    bool m_underline = false;
    bool m_strikeout = false;
};

Ref<IFont> NewFont(const std::wstring& family, double size)
{
    return Ref<IFont>(new CFont(family, size));
}

void RegisterFont()
{
    Font::New.Register(L"Font", &NewFont);
}

const System::Template::Initializer<::Library> fonts(&RegisterFont, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Drawing
