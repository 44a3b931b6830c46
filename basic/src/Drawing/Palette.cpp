// Palettes and their collection, behind Palette::New,
// InterpolatedPalette::New and PaletteCollection::New, and the default
// collection of Drawing::Globals::Palettes().
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Drawing/Globals.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "System/SettingsLifetime.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::LIString;
using System::Pointer;
using System::Ref;

namespace {

// The entry of `index` in a table, the nearest end for indices beyond it.
Color ClampedEntry(const std::vector<Color>& table, std::int64_t index)
{
    if (table.empty())
        return Color::Black();
    const auto last = static_cast<std::int64_t>(table.size()) - 1;
    return table[static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, last))];
}

class CPalette : public System::Template::ObjectImpl<CPalette, IPalette, System::ICloneable> {
public:
    CPalette(LIString name, std::vector<Color> colors) : m_name(std::move(name)), m_colors(std::move(colors))
    {
    }

    LIString Name() override { return m_name; }
    void SetName(const LIString& name) override { m_name = name; }
    std::vector<Color> Colors() override { return m_colors; }
    void SetColors(const std::vector<Color>& colors) override { m_colors = colors; }
    Color ColorAt(std::int64_t index) override { return ClampedEntry(m_colors, index); }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CPalette(m_name, m_colors));
    }

private:
    LIString m_name;
    std::vector<Color> m_colors;
};

std::uint8_t Mix(std::uint8_t a, std::uint8_t b, double share)
{
    return static_cast<std::uint8_t>(std::lround(a + (double(b) - double(a)) * share));
}

Color Mix(Color a, Color b, double share)
{
    return Color(Mix(a.R(), b.R(), share), Mix(a.G(), b.G(), share), Mix(a.B(), b.B(), share),
                 Mix(a.A(), b.A(), share));
}

class CInterpolatedPalette
    : public System::Template::ObjectImpl<CInterpolatedPalette, IInterpolatedPalette, System::ICloneable> {
public:
    struct Stop {
        double position;
        Color color;
    };

    CInterpolatedPalette(LIString name, std::vector<Stop> stops, double minimum, double maximum,
                         std::int64_t resolution)
        : m_name(std::move(name)), m_stops(std::move(stops)), m_minimum(minimum), m_maximum(maximum),
          m_resolution(std::max<std::int64_t>(resolution, 1))
    {
        SortStops();
        Recompute();
    }

    LIString Name() override { return m_name; }
    void SetName(const LIString& name) override { m_name = name; }
    std::vector<Color> Colors() override { return m_table; }
    // A table given as it is becomes one stop per entry, spread evenly over
    // the range, so that the palette stays an interpolation.
    void SetColors(const std::vector<Color>& colors) override
    {
        m_stops.clear();
        const double step = colors.size() > 1 ? (m_maximum - m_minimum) / double(colors.size() - 1) : 0.0;
        for (std::size_t i = 0; i < colors.size(); ++i)
            m_stops.push_back({m_minimum + step * double(i), colors[i]});
        Recompute();
    }
    Color ColorAt(std::int64_t index) override { return ClampedEntry(m_table, index); }

    std::int64_t StopCount() override { return static_cast<std::int64_t>(m_stops.size()); }
    double StopPosition(std::int64_t stop) override { return StopAt(stop).position; }
    Color StopColor(std::int64_t stop) override { return StopAt(stop).color; }
    std::int64_t AddStop(double position, Color color) override
    {
        auto place = std::upper_bound(m_stops.begin(), m_stops.end(), position,
                                      [](double p, const Stop& s) { return p < s.position; });
        const auto index = place - m_stops.begin();
        m_stops.insert(place, Stop{position, color});
        Recompute();
        return index;
    }
    void SetStop(std::int64_t stop, double position, Color color) override
    {
        StopAt(stop) = Stop{position, color};
        SortStops();
        Recompute();
    }
    bool RemoveStop(std::int64_t stop) override
    {
        if (stop < 0 || stop >= StopCount())
            return false;
        m_stops.erase(m_stops.begin() + stop);
        Recompute();
        return true;
    }
    void ClearStops() override
    {
        m_stops.clear();
        Recompute();
    }
    double Minimum() override { return m_minimum; }
    double Maximum() override { return m_maximum; }
    void SetRange(double minimum, double maximum) override
    {
        m_minimum = minimum;
        m_maximum = maximum;
        Recompute();
    }
    std::int64_t Resolution() override { return m_resolution; }
    void SetResolution(std::int64_t entries) override
    {
        m_resolution = std::max<std::int64_t>(entries, 1);
        Recompute();
    }
    Color Interpolate(double value) override
    {
        if (m_stops.empty())
            return Color::Black();
        if (!(value > m_stops.front().position))
            return m_stops.front().color;
        if (!(value < m_stops.back().position))
            return m_stops.back().color;
        auto upper = std::upper_bound(m_stops.begin(), m_stops.end(), value,
                                      [](double v, const Stop& s) { return v < s.position; });
        const Stop& high = *upper;
        const Stop& low = *(upper - 1);
        const double width = high.position - low.position;
        return width > 0 ? Mix(low.color, high.color, (value - low.position) / width) : high.color;
    }
    void Reverse() override
    {
        for (Stop& stop : m_stops)
            stop.position = m_minimum + m_maximum - stop.position;
        std::reverse(m_stops.begin(), m_stops.end());
        Recompute();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(
            new CInterpolatedPalette(m_name, m_stops, m_minimum, m_maximum, m_resolution));
    }

private:
    Stop& StopAt(std::int64_t stop)
    {
        if (stop < 0 || stop >= StopCount())
            System::Collections::Template::Detail::RaiseIndexOutOfRange(stop);
        return m_stops[static_cast<std::size_t>(stop)];
    }
    void SortStops()
    {
        std::stable_sort(m_stops.begin(), m_stops.end(),
                         [](const Stop& a, const Stop& b) { return a.position < b.position; });
    }
    void Recompute()
    {
        m_table.resize(static_cast<std::size_t>(m_resolution));
        const double step = m_resolution > 1 ? (m_maximum - m_minimum) / double(m_resolution - 1) : 0.0;
        for (std::int64_t i = 0; i < m_resolution; ++i)
            m_table[static_cast<std::size_t>(i)] = Interpolate(m_minimum + step * double(i));
    }

    LIString m_name;
    std::vector<Stop> m_stops;
    double m_minimum;
    double m_maximum;
    std::int64_t m_resolution;
    std::vector<Color> m_table;
};

using PaletteStore = System::Collections::Template::Detail::ICollectionImplBase<IPalette>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
using PaletteView = System::Collections::Template::Detail::ICollectionImpl<IPaletteCollection, IPalette,
                                                                           Events, PaletteStore>;

class CPaletteCollection
    : public System::Template::ObjectImpl<
          CPaletteCollection, PaletteView,
          System::Collections::Template::Detail::ICollectionImpl<System::Collections::ICollection,
                                                                 System::Interface, Events, PaletteStore>,
          System::Collections::ICloneable> {
public:
    CPaletteCollection() = default;
    // A deep copy, so that a thread's or a caller's copy changes alone.
    CPaletteCollection(const CPaletteCollection& other) : Events(), PaletteStore(), ObjectImpl()
    {
        PaletteView::CopyFrom(other, true);
        if (other.m_default) {
            const std::int64_t index = IndexOfStored(other, other.m_default);
            m_default = index >= 0 ? Pointer<IPalette, 0>(m_items[std::size_t(index)]) : other.m_default;
        }
    }

    Pointer<IPalette, 0> Find(const LIString& name) override
    {
        const std::int64_t index = IndexOfName(name);
        return index < 0 ? Pointer<IPalette, 0>() : Pointer<IPalette, 0>(m_items[std::size_t(index)]);
    }
    std::int64_t IndexOfName(const LIString& name) override
    {
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (m_items[i]->Name() == name)
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
    bool Contains(const LIString& name) override { return IndexOfName(name) >= 0; }
    bool RemoveByName(const LIString& name) override
    {
        const std::int64_t index = IndexOfName(name);
        return index >= 0 && PaletteView::RemoveAt(index);
    }
    std::int64_t AddOrReplace(const Ref<IPalette>& palette) override
    {
        const std::int64_t index = IndexOfName(palette->Name());
        if (index < 0)
            return PaletteView::Add(palette);
        PaletteView::SetItem(index, palette);
        return index;
    }
    void AddRange(const std::vector<Ref<IPalette>>& palettes) override
    {
        for (const auto& palette : palettes)
            PaletteView::Add(palette);
    }
    void Merge(const Ref<IPaletteCollection>& other, bool replace) override
    {
        // A copy first: merging a collection into itself must not walk a
        // list that it changes.
        for (const auto& palette : other->ToVector()) {
            if (replace || !Contains(palette->Name()))
                AddOrReplace(palette);
        }
    }
    std::vector<LIString> Names() override
    {
        std::vector<LIString> names;
        names.reserve(m_items.size());
        for (const auto& palette : m_items)
            names.push_back(palette->Name());
        return names;
    }
    std::vector<Ref<IPalette>> ToVector() override { return m_items; }
    bool Rename(const LIString& from, const LIString& to) override
    {
        Pointer<IPalette, 0> palette = Find(from);
        if (!palette)
            return false;
        palette->SetName(to);
        return true;
    }
    // Reordered in place: an order is no change of items, so no event fires.
    void SortByName() override
    {
        std::stable_sort(m_items.begin(), m_items.end(), [](const Ref<IPalette>& a, const Ref<IPalette>& b) {
            return a->Name().Value() < b->Name().Value();
        });
    }
    Pointer<IPalette, 0> DefaultPalette() override { return m_default; }
    void SetDefaultPalette(const Pointer<IPalette, 0>& palette) override { m_default = palette; }

    Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return Pointer<System::Collections::ICloneable, 1>(new CPaletteCollection(*this));
    }

private:
    static std::int64_t IndexOfStored(const CPaletteCollection& collection,
                                      const Pointer<IPalette, 0>& palette)
    {
        for (std::size_t i = 0; i < collection.m_items.size(); ++i) {
            if (collection.m_items[i] == palette)
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }

    Pointer<IPalette, 0> m_default;
};

Ref<IPalette> NewPalette(const LIString& name, const std::vector<Color>& colors)
{
    return Ref<IPalette>(new CPalette(name, colors));
}

Ref<IInterpolatedPalette> NewRamp(const LIString& name, Color from, Color to)
{
    return Ref<IInterpolatedPalette>(
        new CInterpolatedPalette(name, {{0.0, from}, {255.0, to}}, 0.0, 255.0, 256));
}

Ref<IPaletteCollection> NewPaletteCollection()
{
    return Ref<IPaletteCollection>(new CPaletteCollection());
}

std::vector<Color> GreyRamp()
{
    std::vector<Color> colors(256);
    for (int v = 0; v < 256; ++v)
        colors[std::size_t(v)] = Color(std::uint8_t(v), std::uint8_t(v), std::uint8_t(v));
    return colors;
}

std::vector<Color> BinaryTable()
{
    std::vector<Color> colors(256, Color::White());
    colors[0] = Color::Black();
    return colors;
}

// Label 0 is the background, black; the others step round the hue circle
// by the golden angle, so that neighbouring labels never look alike, in
// three alternating brightnesses.
std::vector<Color> LabelTable()
{
    std::vector<Color> colors(256);
    for (int label = 1; label < 256; ++label) {
        const double hue = std::fmod(label * 137.50776405, 360.0) / 60.0;
        const double value = 1.0 - 0.2 * (label % 3);
        const double x = value * (1.0 - std::fabs(std::fmod(hue, 2.0) - 1.0));
        double r = 0, g = 0, b = 0;
        switch (static_cast<int>(hue)) {
        case 0:
            r = value, g = x;
            break;
        case 1:
            r = x, g = value;
            break;
        case 2:
            g = value, b = x;
            break;
        case 3:
            g = x, b = value;
            break;
        case 4:
            r = x, b = value;
            break;
        default:
            r = value, b = x;
            break;
        }
        colors[std::size_t(label)] =
            Color(std::uint8_t(std::lround(r * 255)), std::uint8_t(std::lround(g * 255)),
                  std::uint8_t(std::lround(b * 255)));
    }
    return colors;
}

// The palettes of the predefined image categories, named after them: an
// image whose category is set finds "Palette.<what follows
// Image.Category>". What each shows:
// - Grey: the grey ramp, sample v as (v, v, v).
// - Binary: 0 black, every other value white, so that a mask stored as 0
//   and 1 shows as well as one stored as 0 and 255.
// - Label: 0 black, the labels in colours that set neighbours apart.
// - Color: the identity ramp. Colour images show their channels as they
//   are; the palette only states that, and a channel shown alone is grey.
// - Edge and Complex: the grey ramp, for the magnitudes that views show of
//   gradients and complex samples.
// - Frequency: a "fire" ramp from black through red and yellow to white:
//   spectra span a wide range, which a few hues resolve better than grey.
Ref<IPaletteCollection> MakeDefaultPalettes()
{
    Ref<IPaletteCollection> palettes = NewPaletteCollection();
    palettes->Add(NewPalette(LIString(L"Palette.Binary", true), BinaryTable()));
    palettes->Add(NewPalette(LIString(L"Palette.Grey", true), GreyRamp()));
    palettes->Add(NewPalette(LIString(L"Palette.Label", true), LabelTable()));
    palettes->Add(NewPalette(LIString(L"Palette.Color", true), GreyRamp()));
    palettes->Add(NewPalette(LIString(L"Palette.Edge", true), GreyRamp()));
    palettes->Add(NewPalette(LIString(L"Palette.Complex", true), GreyRamp()));
    Ref<IInterpolatedPalette> fire =
        NewRamp(LIString(L"Palette.Frequency", true), Color::Black(), Color::White());
    fire->AddStop(85.0, Color(192, 0, 0));
    fire->AddStop(170.0, Color(255, 192, 0));
    palettes->Add(fire);
    palettes->SetDefaultPalette(palettes->Find(LIString(L"Palette.Grey", true)));
    return palettes;
}

void StartPalettes()
{
    Palette::New.Register(L"Palette", &NewPalette);
    InterpolatedPalette::New.Register(L"Interpolated palette", &NewRamp);
    PaletteCollection::New.Register(L"Palette collection", &NewPaletteCollection);
    Globals::SetPalettes(MakeDefaultPalettes());
}

// The collection goes at shut-down, so that nothing of it outlives the
// library that made it.
void StopPalettes()
{
    Globals::ClearPalettes();
}

const SettingsLifetime palettes(&StartPalettes, &StopPalettes, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Drawing
