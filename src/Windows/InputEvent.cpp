#include "Quilon_/Windows/InputEvent.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Formatter.h"

namespace Quilon_::Windows {

namespace {
bool IsMouseEvent(InputEventTypeEnum type)
{
    return type <= ietMouseHover;
}
bool IsKeyEvent(InputEventTypeEnum type)
{
    return type >= ietKeyDown && type <= ietKeyPress;
}
} // namespace

std::wstring InputEvent::HashKey() const
{
    if (!m_hashKey.empty())
        return m_hashKey;
    std::wstring key;
    // A key event has no button, whose empty name leaves the text starting
    // with "-".
    const std::wstring button = System::ToString(static_cast<SpecialKeyEnum>(m_button));
    if (IsMouseEvent(m_type))
        key = button + L"-" + System::ToString(m_type);
    else if (IsKeyEvent(m_type))
        key = button + L"-" + System::ToString(m_type) + L"-" +
              std::wstring(System::Detail::Formatter(L"%1$#06x") % m_key);
    else if (m_type == ietKeyword)
        key = m_keyword;
    m_hashKey = key;
    return key;
}

std::wstring InputEvent::ToString() const
{
    if (!m_text.empty())
        return m_text;
    std::wstring text = L"Event:";
    const std::wstring state = m_state.ToString();
    if (!state.empty())
        text += state + L"_";
    text += HashKey();
    m_text = text;
    return text;
}

bool InputEvent::operator==(const InputEvent& other) const
{
    return m_state == other.m_state && m_exactMatch == other.m_exactMatch && m_type == other.m_type &&
           m_button == other.m_button && m_key == other.m_key && m_keyword == other.m_keyword;
}

} // namespace Quilon_::Windows

QUILON_DEFINE_ENUM_TEXT(Windows::InputEventTypeEnum, Number, {Windows::ietMouseClick, L"ietMouseClick"},
                        {Windows::ietMouseDoubleClick, L"ietMouseDoubleClick"},
                        {Windows::ietMouseDown, L"ietMouseDown"}, {Windows::ietMouseUp, L"ietMouseUp"},
                        {Windows::ietMouseWheelUp, L"ietMouseWheelUp"},
                        {Windows::ietMouseWheelDown, L"ietMouseWheelDown"},
                        {Windows::ietMouseEnter, L"ietMouseEnter"},
                        {Windows::ietMouseLeave, L"ietMouseLeave"}, {Windows::ietMouseMove, L"ietMouseMove"},
                        {Windows::ietMouseHover, L"ietMouseHover"}, {Windows::ietKeyDown, L"ietKeyDown"},
                        {Windows::ietKeyUp, L"ietKeyUp"}, {Windows::ietKeyPress, L"ietKeyPress"},
                        {Windows::ietKeyword, L"ietKeyword"})
