// Colours of the drawing model: one 32-bit value of alpha, red, green and
// blue, 8 bits each, as pens, brushes and palettes use them. A value class,
// boxable in Any.
//
//   Drawing::Color red(255, 0, 0);                 // opaque
//   Drawing::Color glass = Drawing::Color::FromArgb(0x80FFFFFFu);
//   red.R();                                       // 255
//   System::Any a = System::ToAny(red);
//   a.CastTo<Drawing::Color>() == red;             // true
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>

namespace Quilon_::Drawing {

class Color {
public:
    // Opaque black: what a pen draws with unless told otherwise.
    constexpr Color() noexcept = default;
    constexpr Color(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a = 255) noexcept
        : m_argb((std::uint32_t(a) << 24) | (std::uint32_t(r) << 16) | (std::uint32_t(g) << 8) | b)
    {
    }

    // From and to the packed form 0xAARRGGBB.
    static constexpr Color FromArgb(std::uint32_t argb) noexcept
    {
        Color made;
        made.m_argb = argb;
        return made;
    }
    constexpr std::uint32_t ToArgb() const noexcept { return m_argb; }

    constexpr std::uint8_t A() const noexcept { return Channel(24); }
    constexpr std::uint8_t R() const noexcept { return Channel(16); }
    constexpr std::uint8_t G() const noexcept { return Channel(8); }
    constexpr std::uint8_t B() const noexcept { return Channel(0); }
    constexpr bool IsOpaque() const noexcept { return A() == 255; }
    // The same colour with another alpha.
    constexpr Color WithAlpha(std::uint8_t a) const noexcept { return Color(R(), G(), B(), a); }

    static constexpr Color Black() noexcept { return Color(0, 0, 0); }
    static constexpr Color White() noexcept { return Color(255, 255, 255); }
    static constexpr Color Transparent() noexcept { return FromArgb(0); }

    friend constexpr bool operator==(const Color& a, const Color& b) noexcept { return a.m_argb == b.m_argb; }

private:
    constexpr std::uint8_t Channel(int shift) const noexcept
    {
        return std::uint8_t((m_argb >> shift) & 0xFFu);
    }

    std::uint32_t m_argb = 0xFF000000u;
};

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API Any ToAny(const Drawing::Color& value);
} // namespace Quilon_::System
