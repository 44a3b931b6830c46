#include "Quilon_/Geometry/Axes.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Raise.h"

#include <array>

namespace Quilon_::Geometry {

namespace {

struct AxisLetter {
    AxisEnum axis;
    const wchar_t* letter;
};

constexpr std::array<AxisLetter, 5> axisLetters{{{aX, L"X"}, {aY, L"Y"}, {aZ, L"Z"}, {aT, L"T"}, {aB, L"B"}}};

} // namespace

QUILON_DEFINE_FUNCTION_SLOT(AxesToString, 1, std::wstring (*)(unsigned char))

std::wstring AxesToString(unsigned char axes)
{
    return QUILON_FUNCTION_SLOT(AxesToString, 1)(axes);
}

std::int64_t Axes::AxisCount() const noexcept
{
    std::int64_t count = 0;
    for (unsigned mask = m_mask; mask != 0; mask >>= 1)
        count += mask & 1u;
    return count;
}

// The test is `index <= size` on purpose, as callers compiled against this
// library expect: only an index beyond the size is refused. The one past
// the end and negative indexes give 0 instead of reading outside the list.
AxisEnum Axes::Axis(std::int64_t index) const
{
    const std::vector<AxisEnum> axes = ToVector();
    const auto size = static_cast<std::int64_t>(axes.size());
    if (!(index <= size))
        QUILON_RAISE(L"Axis index is out of range: '%1%' (maximum is '%2%')", index, size);
    if (index < 0 || index == size)
        return static_cast<AxisEnum>(0);
    return axes[static_cast<std::size_t>(index)];
}

std::vector<AxisEnum> Axes::ToVector() const
{
    std::vector<AxisEnum> axes;
    for (const AxisLetter& entry : axisLetters) {
        if (m_mask & entry.axis)
            axes.push_back(entry.axis);
    }
    return axes;
}

std::wstring Axes::ToString() const
{
    std::wstring text;
    for (const AxisLetter& entry : axisLetters) {
        if (m_mask & entry.axis)
            text += entry.letter;
    }
    return text;
}

} // namespace Quilon_::Geometry

namespace Quilon_::System {

Any ToAny(const Geometry::Axes& axes)
{
    return Detail::Box(axes);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(Geometry::AxisEnum, Number, {Geometry::aX, L"aX"}, {Geometry::aY, L"aY"},
                        {Geometry::aZ, L"aZ"}, {Geometry::aT, L"aT"}, {Geometry::aB, L"aB"})
