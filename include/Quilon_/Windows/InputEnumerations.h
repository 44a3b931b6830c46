// The enumerations that mouse and key event arguments carry. Their values
// line up with the rest of the input model: the event types with those of
// InputEventTypeEnum, the buttons and modifier keys with the bits of
// SpecialKeyEnum, so that a state takes them over as they are:
//
//   state.SpecialKeys() | (args->Modifiers() & skModifierMask)
//   System::ToString(Windows::mbLeft);   // "mbLeft"
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::Windows {

enum KeyEventTypeEnumTag : std::int32_t {
    ketKeyDown = 11,
    ketKeyUp = 12,
    ketKeyPress = 13,
};
using KeyEventTypeEnum = KeyEventTypeEnumTag;

enum MouseEventTypeEnumTag : std::int32_t {
    metMouseClick = 1,
    metMouseDoubleClick = 2,
    metMouseDown = 3,
    metMouseUp = 4,
    metMouseWheelUp = 5,
    metMouseWheelDown = 6,
    metMouseEnter = 7,
    metMouseLeave = 8,
    metMouseMove = 9,
    metMouseHover = 10,
};
using MouseEventTypeEnum = MouseEventTypeEnumTag;

// One button, or several or'ed together where buttons are held.
enum MouseButtonEnumTag : std::int32_t {
    mbNone = 0,
    mbLeft = 1,
    mbRight = 2,
    mbMiddle = 4,
    mbXButton1 = 8,
    mbXButton2 = 16,
};
using MouseButtonEnum = MouseButtonEnumTag;

// Bits, or'ed together when several keys are held.
enum ModifierKeysEnumTag : std::int32_t {
    mkNone = 0,
    mkShift = 256,
    mkControl = 512,
    mkAlt = 1024,
};
using ModifierKeysEnum = ModifierKeysEnumTag;

} // namespace Quilon_::Windows

namespace Quilon_::System {
QUILON_API std::wstring ToString(Windows::KeyEventTypeEnum value);
QUILON_API std::wstring ToString(Windows::MouseEventTypeEnum value);
QUILON_API std::wstring ToString(Windows::MouseButtonEnum value);
QUILON_API std::wstring ToString(Windows::ModifierKeysEnum value);
} // namespace Quilon_::System
