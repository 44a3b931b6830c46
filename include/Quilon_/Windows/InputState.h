// The keys and buttons held at one moment: a set of special keys (mouse
// buttons and modifiers, as bits) and at most one ordinary key. An
// application keeps one up to date from a window's events and matches it
// against the gestures bound to commands:
//
//   Windows::InputState held;
//   held.Update(mouseArgs, false);                 // takes the button and modifiers
//   held.Contains(Windows::InputState(Windows::skControl));
//   held.ToString();                               // "skControl+skLeft"
//
// The text lists the set keys from the highest bit down, joined with "+",
// and then the key's decimal code; it is cached until the next Update.
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {
class IEventArgs;
} // namespace Quilon_::System

namespace Quilon_::Windows {

enum SpecialKeyEnumTag : std::uint32_t {
    skLeft = 1,
    skRight = 2,
    skMiddle = 4,
    skXButton1 = 8,
    skXButton2 = 16,
    skShift = 256,
    skControl = 512,
    skAlt = 1024,
};
using SpecialKeyEnum = SpecialKeyEnumTag;

// The bits of Shift, Control and Alt.
constexpr std::uint32_t skModifierMask = skShift | skControl | skAlt;

class QUILON_API InputState {
public:
    InputState() = default;
    explicit InputState(unsigned int specialKeys) : m_specialKeys(specialKeys) {}
    InputState(unsigned int specialKeys, unsigned short key) : m_specialKeys(specialKeys), m_key(key) {}

    std::uint32_t SpecialKeys() const { return m_specialKeys; }
    std::uint16_t Key() const { return m_key; }

    // The same keys and key; the cached text does not count.
    bool operator==(const InputState& other) const
    {
        return m_specialKeys == other.m_specialKeys && m_key == other.m_key;
    }

    // Whether every special key of `other` is held here, and `other` names
    // no key or this one.
    bool Contains(const InputState& other) const;

    // Follows a mouse or key event: the modifier keys are taken from it as
    // they are; unless `modifiersOnly`, a button going down or up, a key
    // going down, or the held key going up changes the state too. Args of
    // another kind change nothing but the modifiers, which they clear.
    void Update(System::Ref<System::IEventArgs> args, bool modifiersOnly);

    std::wstring ToString() const;

private:
    std::uint32_t m_specialKeys = 0;
    std::uint16_t m_key = 0;
    mutable std::wstring m_text;
};

} // namespace Quilon_::Windows

namespace Quilon_::System {
// Names single bits only; any other value is the empty text.
QUILON_API std::wstring ToString(Windows::SpecialKeyEnum value);
} // namespace Quilon_::System
