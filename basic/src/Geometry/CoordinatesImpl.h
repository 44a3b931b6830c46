// The concrete coordinates of the reference library, written once for the
// three numeric kinds and for classes that add to them.
//
// The values sit in a fixed array, one per set bit of the axes in ascending
// bit order, so that an object holds at most eight values and needs no
// allocation of its own. A class with more state (weighted coordinates)
// derives from the template and names itself first:
//
//   class CWeightedCoordinates
//       : public Basic::Geometry::CoordinatesImpl<CWeightedCoordinates, IWeightedCoordinates> {
//   public:
//       CWeightedCoordinates(Axes axes, double weight) : CoordinatesImpl(axes), m_weight(weight) {}
//       bool Equals(System::Pointer<System::Interface, 1> other) override
//       {
//           return CoordinatesImpl::Equals(other) && /* compare the weights */;
//       }
//       ...
//   };
//
// Clone() copies the most derived class with its copy constructor, which
// the template makes safe (the copy starts a count and a proxy of its own).
#pragma once

#include "Quilon_/Basic/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>

namespace Quilon_::Basic::Geometry {

using Quilon_::Geometry::Axes;
using Quilon_::Geometry::AxisEnum;

// The failures shared by the coordinates and their functions (Coordinates.cpp).
[[noreturn]] void RaiseIndexOutOfRange(std::int64_t index, std::int64_t count);
[[noreturn]] void RaiseMissingAxis(AxisEnum axis, Axes axes);
[[noreturn]] void RaiseTooManyValues(std::size_t count, Axes axes);
[[noreturn]] void RaiseAxesMismatch(Axes a, Axes b);

// The position of `axis` among `axes`, or -1 when `axis` is not one bit of
// them.
inline std::int64_t IndexOfAxis(Axes axes, AxisEnum axis) noexcept
{
    const unsigned bit = static_cast<unsigned>(axis);
    if (bit == 0 || (bit & (bit - 1)) != 0 || (axes & bit) == 0)
        return -1;
    return __builtin_popcount(static_cast<unsigned>(axes) & (bit - 1));
}

template <class Derived, class I, class... More>
class CoordinatesImpl
    : public System::Template::ObjectImpl<Derived, I, System::ICloneable, System::IEquatable, More...> {
    using Base = System::Template::ObjectImpl<Derived, I, System::ICloneable, System::IEquatable, More...>;

public:
    using V = typename I::ValueType;
    using Values = std::array<V, MaximumAxisCount>;

    // All values 0.
    explicit CoordinatesImpl(Quilon_::Geometry::Axes axes) noexcept
        : m_axes(axes), m_count(axes.AxisCount()), m_values{}
    {
    }
    // The first values of `axes` in ascending bit order, the others 0.
    CoordinatesImpl(Quilon_::Geometry::Axes axes, std::initializer_list<V> values) : CoordinatesImpl(axes)
    {
        if (static_cast<std::int64_t>(values.size()) > m_count)
            RaiseTooManyValues(values.size(), axes);
        std::copy(values.begin(), values.end(), m_values.begin());
    }
    CoordinatesImpl(Quilon_::Geometry::Axes axes, const Values& values) noexcept
        : m_axes(axes), m_count(axes.AxisCount()), m_values(values)
    {
    }
    // A copy is a new object: count and proxy start afresh.
    CoordinatesImpl(const CoordinatesImpl& other) noexcept
        : Base(), m_axes(other.m_axes), m_count(other.m_count), m_values(other.m_values)
    {
    }
    CoordinatesImpl& operator=(const CoordinatesImpl&) = delete;

    Quilon_::Geometry::Axes Axes() const override { return m_axes; }
    // Values on the axes of both sets stay; new axes start at 0.
    void SetAxes(Quilon_::Geometry::Axes axes) override
    {
        Values values{};
        std::int64_t from = 0;
        std::int64_t to = 0;
        for (unsigned bit = 1; bit < 0x100; bit <<= 1) {
            const bool had = (m_axes & bit) != 0;
            if (axes & bit)
                values[static_cast<std::size_t>(to++)] = had ? m_values[static_cast<std::size_t>(from)] : V();
            if (had)
                ++from;
        }
        m_axes = axes;
        m_count = to;
        m_values = values;
    }

    V X() override { return Value(Quilon_::Geometry::aX); }
    void SetX(V value) override { SetValue(Quilon_::Geometry::aX, value); }
    V Y() override { return Value(Quilon_::Geometry::aY); }
    void SetY(V value) override { SetValue(Quilon_::Geometry::aY, value); }
    V Z() override { return Value(Quilon_::Geometry::aZ); }
    void SetZ(V value) override { SetValue(Quilon_::Geometry::aZ, value); }
    V T() override { return Value(Quilon_::Geometry::aT); }
    void SetT(V value) override { SetValue(Quilon_::Geometry::aT, value); }
    V B() override { return Value(Quilon_::Geometry::aB); }
    void SetB(V value) override { SetValue(Quilon_::Geometry::aB, value); }

    V Value(std::int64_t index) override { return m_values[Checked(index)]; }
    V Value(AxisEnum axis) override { return m_values[Position(axis)]; }
    void SetValue(std::int64_t index, V value) override { m_values[Checked(index)] = value; }
    void SetValue(AxisEnum axis, V value) override { m_values[Position(axis)] = value; }
    std::int64_t AxisCount() const override { return m_count; }
    std::int64_t IndexOfAxis(AxisEnum axis) override { return Geometry::IndexOfAxis(m_axes, axis); }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new Derived(static_cast<const Derived&>(*this)));
    }
    // Equal when `other` is coordinates of the same kind with the same axes
    // and the same values, compared exactly.
    bool Equals(System::Pointer<System::Interface, 1> other) override
    {
        System::Pointer<I, 0> coordinates(other);
        if (!coordinates || coordinates->Axes() != m_axes)
            return false;
        for (std::int64_t i = 0; i < m_count; ++i) {
            if (coordinates->Value(i) != m_values[static_cast<std::size_t>(i)])
                return false;
        }
        return true;
    }

    // The values without a virtual call, for the functions of this library.
    const Values& Data() const noexcept { return m_values; }

private:
    std::size_t Checked(std::int64_t index) const
    {
        if (index < 0 || index >= m_count)
            RaiseIndexOutOfRange(index, m_count);
        return static_cast<std::size_t>(index);
    }
    std::size_t Position(AxisEnum axis) const
    {
        const std::int64_t index = Geometry::IndexOfAxis(m_axes, axis);
        if (index < 0)
            RaiseMissingAxis(axis, m_axes);
        return static_cast<std::size_t>(index);
    }

    Quilon_::Geometry::Axes m_axes;
    std::int64_t m_count;
    Values m_values;
};

// The plain coordinates of the three kinds.
template <class I>
class CCoordinates : public CoordinatesImpl<CCoordinates<I>, I> {
public:
    using CoordinatesImpl<CCoordinates<I>, I>::CoordinatesImpl;
};

using CIntegerCoordinates = CCoordinates<Quilon_::Geometry::ICoordinates>;
using CFloatCoordinates = CCoordinates<Quilon_::Geometry::ICoordinatesF>;
using CDoubleCoordinates = CCoordinates<Quilon_::Geometry::ICoordinatesD>;

} // namespace Quilon_::Basic::Geometry
