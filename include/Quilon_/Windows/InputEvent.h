// A gesture that can be bound to a command: a kind of mouse or key event,
// with the button or key it concerns and the state of the other keys, or a
// keyword that a caller fires by name.
//
//   Windows::InputEvent ctrlClick(Windows::InputState(Windows::skControl), true,
//                                 Windows::metMouseClick, Windows::mbLeft);
//   ctrlClick.HashKey();    // "skLeft-ietMouseClick"
//   ctrlClick.ToString();   // "Event:skControl_skLeft-ietMouseClick"
//   Windows::InputEvent(Windows::InputState(), false, Windows::ketKeyDown, 0x41).HashKey();
//                           // "-ietKeyDown-0x0041": a key event has no button
//   Windows::InputEvent(L"Zoom in").HashKey();   // "Zoom in"
//
// The hash key identifies the gesture in a map of bindings; `ExactMatch`
// tells the matcher whether other held keys spoil the match.
#pragma once

#include "Quilon_/Windows/InputEnumerations.h"
#include "Quilon_/Windows/InputState.h"

#include <cstdint>
#include <string>

namespace Quilon_::Windows {

enum InputEventTypeEnumTag : std::int32_t {
    ietMouseClick = 1,
    ietMouseDoubleClick = 2,
    ietMouseDown = 3,
    ietMouseUp = 4,
    ietMouseWheelUp = 5,
    ietMouseWheelDown = 6,
    ietMouseEnter = 7,
    ietMouseLeave = 8,
    ietMouseMove = 9,
    ietMouseHover = 10,
    ietKeyDown = 11,
    ietKeyUp = 12,
    ietKeyPress = 13,
    ietKeyword = 14,
};
using InputEventTypeEnum = InputEventTypeEnumTag;

class QUILON_API InputEvent {
public:
    InputEvent() = default;
    // A keyword event, of type ietKeyword.
    explicit InputEvent(const std::wstring& keyword) : m_type(ietKeyword), m_keyword(keyword) {}
    InputEvent(const InputState& state, bool exactMatch, KeyEventTypeEnum type, unsigned short key)
        : m_state(state), m_exactMatch(exactMatch), m_type(static_cast<InputEventTypeEnum>(type)), m_key(key)
    {
    }
    InputEvent(const InputState& state, bool exactMatch, MouseEventTypeEnum type, MouseButtonEnum button)
        : m_state(state), m_exactMatch(exactMatch), m_type(static_cast<InputEventTypeEnum>(type)),
          m_button(static_cast<std::uint32_t>(button))
    {
    }

    const InputState& State() const { return m_state; }
    InputEventTypeEnum EventType() const { return m_type; }
    unsigned short Key() const { return m_key; }
    bool ExactMatch() const { return m_exactMatch; }
    const std::wstring& Keyword() const { return m_keyword; }

    // Mouse events: button, "-", type; key events: "-", type, "-", the key
    // in hexadecimal; keyword events: the keyword. Cached.
    std::wstring HashKey() const;
    // "Event:", the state's text and "_" when it has one, the hash key. Cached.
    std::wstring ToString() const;

    // Every field but the caches.
    bool operator==(const InputEvent& other) const;
    bool operator!=(const InputEvent& other) const { return !(*this == other); }

private:
    InputState m_state;
    bool m_exactMatch = false;
    InputEventTypeEnum m_type = static_cast<InputEventTypeEnum>(0);
    std::uint32_t m_button = 0;
    std::uint16_t m_key = 0;
    mutable std::wstring m_hashKey;
    mutable std::wstring m_text;
    std::wstring m_keyword;
};

} // namespace Quilon_::Windows

namespace Quilon_::System {
QUILON_API std::wstring ToString(Windows::InputEventTypeEnum value);
} // namespace Quilon_::System
