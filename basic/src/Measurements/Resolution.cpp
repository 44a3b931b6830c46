// Resolutions and their collection, behind Resolution::New and
// ResolutionCollection::New.
#include "Measurements/NamedList.h"

#include "Quilon_/Measurements/ResolutionCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using Quilon_::Geometry::Axes;
using Quilon_::Geometry::AxisEnum;
using System::Pointer;
using System::Ref;

namespace {

constexpr std::size_t axisSlots = 8;

// The slot of a single axis bit: values live by bit position, so that
// changing the set keeps them without shifting.
std::size_t SlotOf(AxisEnum axis)
{
    const auto bit = static_cast<unsigned>(axis);
    if (bit == 0 || (bit & (bit - 1)) != 0 || bit >= (1u << axisSlots))
        QUILON_RAISE(L"%1% is not one axis", static_cast<std::int64_t>(bit));
    return static_cast<std::size_t>(__builtin_ctz(bit));
}

class CResolution : public System::Template::ObjectImpl<CResolution, IResolution, System::ICloneable> {
public:
    explicit CResolution(Quilon_::Geometry::Axes axes) : m_axes(axes) { m_values.fill(1.0); }
    CResolution(const CResolution& other)
        : ObjectImpl(), m_axes(other.m_axes), m_values(other.m_values), m_units(other.m_units)
    {
    }

    Quilon_::Geometry::Axes Axes() override { return m_axes; }
    void SetAxes(Quilon_::Geometry::Axes axes) override
    {
        for (std::size_t slot = 0; slot < axisSlots; ++slot) {
            if (!(axes & (1u << slot))) {
                m_values[slot] = 1.0;
                m_units[slot] = nullptr;
            }
        }
        m_axes = axes;
    }
    double Value(AxisEnum axis) override { return m_values[Checked(axis)]; }
    void SetValue(AxisEnum axis, double value) override
    {
        if (!(value > 0.0) || !std::isfinite(value))
            QUILON_RAISE(L"A resolution must be positive, not %1%", value);
        m_values[Checked(axis)] = value;
    }
    Pointer<IUnit, 0> Unit(AxisEnum axis) override { return m_units[Checked(axis)]; }
    void SetUnit(AxisEnum axis, Pointer<IUnit, 0> unit) override { m_units[Checked(axis)] = std::move(unit); }
    bool IsIsotropic() override
    {
        std::size_t first = axisSlots;
        for (AxisEnum axis : {Quilon_::Geometry::aX, Quilon_::Geometry::aY, Quilon_::Geometry::aZ}) {
            if (!(m_axes & axis))
                continue;
            const std::size_t slot = SlotOf(axis);
            if (first == axisSlots)
                first = slot;
            else if (m_values[slot] != m_values[first] || m_units[slot].Get() != m_units[first].Get())
                return false;
        }
        return true;
    }
    double ToPhysical(AxisEnum axis, double samples) override { return samples * Value(axis); }
    double ToSamples(AxisEnum axis, double length) override { return length / Value(axis); }
    Ref<IResolution> Scaled(double factor) override
    {
        Ref<IResolution> scaled(new CResolution(*this));
        for (std::size_t slot = 0; slot < axisSlots; ++slot) {
            if (m_axes & (1u << slot))
                scaled->SetValue(static_cast<AxisEnum>(1u << slot), m_values[slot] * factor);
        }
        return scaled;
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CResolution(*this));
    }

private:
    std::size_t Checked(AxisEnum axis)
    {
        const std::size_t slot = SlotOf(axis);
        if (!(m_axes & axis))
            QUILON_RAISE(L"The resolution of axes '%1%' has no axis %2%", m_axes.ToString(),
                         System::ToString(axis));
        return slot;
    }

    Quilon_::Geometry::Axes m_axes;
    std::array<double, axisSlots> m_values{};
    std::array<Pointer<IUnit, 0>, axisSlots> m_units{};
};

Ref<IResolution> NewResolution(Axes axes)
{
    return Ref<IResolution>(new CResolution(axes));
}

Ref<IResolution> NewScaledResolution(Pointer<IResolution, 0> source, double factor)
{
    if (source)
        return source->Scaled(factor);
    Ref<IResolution> made = NewResolution(Axes::aXY);
    made->SetValue(Quilon_::Geometry::aX, factor);
    made->SetValue(Quilon_::Geometry::aY, factor);
    return made;
}

class CResolutionCollection
    : public System::Template::ObjectImpl<
          CResolutionCollection,
          System::Collections::Template::Detail::ICollectionImpl<IResolutionCollection, IResolution, Events,
                                                                 Store<IResolution>>,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events, Store<IResolution>>,
          System::Collections::ICloneable> {
    using TypedView =
        System::Collections::Template::Detail::ICollectionImpl<IResolutionCollection, IResolution, Events,
                                                               Store<IResolution>>;
    using Items = std::vector<Ref<IResolution>>;

public:
    CResolutionCollection() = default;
    CResolutionCollection(const CResolutionCollection& other) : Events(), Store<IResolution>(), ObjectImpl()
    {
        TypedView::CopyFrom(other, true);
    }

    Items ToVector() override { return m_items; }
    Pointer<IResolution, 0> Find(Axes axes) override
    {
        for (const auto& resolution : m_items) {
            if ((resolution->Axes() & axes) == static_cast<int>(axes))
                return resolution;
        }
        return nullptr;
    }
    Pointer<IResolution, 0> Finest(AxisEnum axis) override { return Extreme(axis, false); }
    Pointer<IResolution, 0> Coarsest(AxisEnum axis) override { return Extreme(axis, true); }
    std::int64_t IndexOfNearest(AxisEnum axis, double value) override
    {
        std::int64_t nearest = -1;
        double distance = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (!(m_items[i]->Axes() & axis))
                continue;
            const double d = std::fabs(m_items[i]->Value(axis) - value);
            if (nearest < 0 || d < distance) {
                nearest = static_cast<std::int64_t>(i);
                distance = d;
            }
        }
        return nearest;
    }
    Ref<IResolution> AddScaled(Ref<IResolution> source, double factor) override
    {
        Ref<IResolution> scaled = source->Scaled(factor);
        TypedView::Add(scaled);
        return scaled;
    }
    // The store is reordered in place: an order is no change of items, so
    // no event fires.
    void SortByValue(AxisEnum axis) override
    {
        std::stable_sort(m_items.begin(), m_items.end(),
                         [axis](const Ref<IResolution>& a, const Ref<IResolution>& b) {
                             const bool aHas = (a->Axes() & axis) != 0;
                             const bool bHas = (b->Axes() & axis) != 0;
                             if (aHas != bHas)
                                 return aHas;
                             return aHas && a->Value(axis) < b->Value(axis);
                         });
    }
    std::vector<double> Values(AxisEnum axis) override
    {
        std::vector<double> values;
        for (const auto& resolution : m_items) {
            if (resolution->Axes() & axis)
                values.push_back(resolution->Value(axis));
        }
        return values;
    }
    bool AllIsotropic() override
    {
        return std::all_of(m_items.begin(), m_items.end(),
                           [](const Ref<IResolution>& r) { return r->IsIsotropic(); });
    }
    Axes CommonAxes() override
    {
        if (m_items.empty())
            return Axes();
        unsigned common = 0xFF;
        for (const auto& resolution : m_items)
            common &= static_cast<unsigned>(resolution->Axes());
        return Axes(static_cast<unsigned char>(common));
    }
    void SetUnit(AxisEnum axis, Pointer<IUnit, 0> unit) override
    {
        for (const auto& resolution : m_items) {
            if (resolution->Axes() & axis)
                resolution->SetUnit(axis, unit);
        }
    }
    void Scale(double factor) override
    {
        for (const auto& resolution : m_items) {
            for (unsigned bit = 1; bit < (1u << axisSlots); bit <<= 1) {
                if (resolution->Axes() & bit) {
                    const auto axis = static_cast<AxisEnum>(bit);
                    resolution->SetValue(axis, resolution->Value(axis) * factor);
                }
            }
        }
    }

    Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return Pointer<System::Collections::ICloneable, 1>(new CResolutionCollection(*this));
    }

private:
    Pointer<IResolution, 0> Extreme(AxisEnum axis, bool greatest)
    {
        Pointer<IResolution, 0> found;
        for (const auto& resolution : m_items) {
            if (!(resolution->Axes() & axis))
                continue;
            if (!found || (greatest ? resolution->Value(axis) > found->Value(axis)
                                    : resolution->Value(axis) < found->Value(axis)))
                found = resolution;
        }
        return found;
    }
};

Ref<IResolutionCollection> NewResolutionCollection()
{
    return Ref<IResolutionCollection>(new CResolutionCollection);
}

void RegisterResolutions()
{
    Resolution::New.Register(L"Resolution", &NewResolution);
    Resolution::New.Register(L"Resolution", &NewScaledResolution);
    ResolutionCollection::New.Register(L"Resolution collection", &NewResolutionCollection);
}

const System::Template::Initializer<::Library> resolutions(&RegisterResolutions, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
