#include "Quilon_/Windows/InputState.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/Windows/KeyEventArgs.h"
#include "Quilon_/Windows/MouseEventArgs.h"

#include <array>

namespace Quilon_::Windows {

namespace {
// The named bits, from the highest down: the order of the text.
constexpr std::array<SpecialKeyEnum, 8> namedBitsDescending = {skAlt,      skControl, skShift, skXButton2,
                                                               skXButton1, skMiddle,  skRight, skLeft};
} // namespace

bool InputState::Contains(const InputState& other) const
{
    return (other.m_specialKeys & ~m_specialKeys) == 0 && (other.m_key == 0 || other.m_key == m_key);
}

void InputState::Update(System::Ref<System::IEventArgs> args, bool modifiersOnly)
{
    m_text.clear();
    System::Pointer<IMouseEventArgs, 0> mouse(args);
    System::Pointer<IKeyEventArgs, 0> key(args);
    m_specialKeys &= ~skModifierMask;
    if (mouse)
        m_specialKeys |= static_cast<std::uint32_t>(mouse->Modifiers()) & skModifierMask;
    else if (key)
        m_specialKeys |= static_cast<std::uint32_t>(key->Modifiers()) & skModifierMask;
    if (modifiersOnly)
        return;
    if (mouse) {
        const auto button = static_cast<std::uint32_t>(mouse->Button());
        if (mouse->EventType() == metMouseDown)
            m_specialKeys |= button;
        else if (mouse->EventType() == metMouseUp)
            m_specialKeys &= ~button;
    } else if (key) {
        if (key->EventType() == ketKeyDown)
            m_key = key->Key();
        else if (key->EventType() == ketKeyUp && key->Key() == m_key)
            m_key = 0;
    }
}

std::wstring InputState::ToString() const
{
    if (!m_text.empty())
        return m_text;
    std::wstring text;
    for (SpecialKeyEnum bit : namedBitsDescending) {
        if ((m_specialKeys & bit) == 0)
            continue;
        if (!text.empty())
            text += L"+";
        text += System::ToString(bit);
    }
    if (m_key != 0) {
        if (!text.empty())
            text += L"+";
        text += std::to_wstring(m_key);
    }
    m_text = text;
    return text;
}

} // namespace Quilon_::Windows

QUILON_DEFINE_ENUM_TEXT(Windows::SpecialKeyEnum, Empty, {Windows::skLeft, L"skLeft"},
                        {Windows::skRight, L"skRight"}, {Windows::skMiddle, L"skMiddle"},
                        {Windows::skXButton1, L"skXButton1"}, {Windows::skXButton2, L"skXButton2"},
                        {Windows::skShift, L"skShift"}, {Windows::skControl, L"skControl"},
                        {Windows::skAlt, L"skAlt"})
