// Axes: which of the five axes a position or an extent has.
//
// An axis is one bit (AxisEnum), and a set of axes is a byte mask held by
// the value class Axes. Coordinates list their values in ascending bit
// order, so the position of an axis among a set is the number of set bits
// below it:
//
//   Geometry::Axes axes = Geometry::Axes::aXYB;   // X, Y and the band axis
//   axes.AxisCount();                             // 3
//   axes.Axis(2);                                 // aB
//   axes.ToString();                              // "XYB"
//   Geometry::AxesToString(axes);                 // the implementation library's text
//
// The constants are fixed values that other libraries compiled against;
// aYZ is 4 (Z alone) and stays so.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace Quilon_::Geometry {

enum AxisEnumTag : std::int32_t {
    aX = 1,
    aY = 2,
    aZ = 4,
    aT = 8,
    // The band axis: channels of a pixel, not a direction in space.
    aB = 16,
};
using AxisEnum = AxisEnumTag;

// A set of axes: exactly one byte, so that it passes and stores like the
// mask it is.
class QUILON_API Axes {
public:
    static const Axes aXY;
    static const Axes aXZ;
    static const Axes aYZ;
    static const Axes aXYB;
    static const Axes aXYZ;
    static const Axes aXYT;
    static const Axes aXYZT;
    static const Axes aXYZB;
    static const Axes aXYZTB;

    constexpr Axes(unsigned char mask = 0) noexcept : m_mask(mask) {}
    constexpr Axes& operator=(unsigned char mask) noexcept
    {
        m_mask = mask;
        return *this;
    }

    // The whole byte is compared, bits above aB included. The overloads for
    // a plain mask or an axis keep `axes == aX` and `axes == 3` unambiguous;
    // the mask is taken as the byte it converts to.
    constexpr bool operator==(const Axes& other) const noexcept { return m_mask == other.m_mask; }
    constexpr bool operator!=(const Axes& other) const noexcept { return m_mask != other.m_mask; }
    template <class Mask>
    requires std::is_integral_v<Mask> || std::is_enum_v<Mask>
    constexpr bool operator==(Mask mask) const noexcept { return m_mask == static_cast<unsigned char>(mask); }
    template <class Mask>
    requires std::is_integral_v<Mask> || std::is_enum_v<Mask>
    constexpr bool operator!=(Mask mask) const noexcept { return m_mask != static_cast<unsigned char>(mask); }
    constexpr operator unsigned char() const noexcept { return m_mask; }

    // The number of set bits of the whole byte: bits above aB count,
    // although ToVector and ToString do not show them.
    std::int64_t AxisCount() const noexcept;
    // The axis at `index` in ascending bit order. An index greater than the
    // number of axes raises "Axis index is out of range: '%1%' (maximum is
    // '%2%')"; an index equal to that number, or a negative one, is not
    // refused and gives the value 0, no axis.
    AxisEnum Axis(std::int64_t index) const;
    // aX, aY, aZ, aT, aB in this order, those that are set.
    std::vector<AxisEnum> ToVector() const;
    // "X", "Y", "Z", "T", "B" for the set axes, without separators.
    std::wstring ToString() const;

private:
    unsigned char m_mask;
};

inline constexpr Axes Axes::aXY{3};
inline constexpr Axes Axes::aXZ{5};
inline constexpr Axes Axes::aYZ{4};
inline constexpr Axes Axes::aXYB{19};
inline constexpr Axes Axes::aXYZ{7};
inline constexpr Axes Axes::aXYT{11};
inline constexpr Axes Axes::aXYZT{15};
inline constexpr Axes Axes::aXYZB{23};
inline constexpr Axes Axes::aXYZTB{31};

static_assert(sizeof(Axes) == 1, "Axes is stored and passed as one byte");

// The printable form of a set of axes, as the implementation library
// writes it; "Function has no implementation" until one is registered.
QUILON_API std::wstring AxesToString(unsigned char axes);
QUILON_DECLARE_FUNCTION_SLOT(AxesToString, 1, std::wstring (*)(unsigned char));

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::AxisEnum axis);
QUILON_API Any ToAny(const Geometry::Axes& axes);
} // namespace Quilon_::System
