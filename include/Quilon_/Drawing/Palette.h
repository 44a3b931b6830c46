// Palettes: named tables of colours that show the samples of an image, the
// entry at index v being the colour of sample value v. Images find their
// palette by name in Drawing::Globals::Palettes() when their category is
// set ("Image.Category.Grey" shows through "Palette.Grey").
//
//   Ref<Drawing::IPalette> grey = Drawing::Palette::New(System::LIString(L"Palette.Grey"), colours);
//   grey->ColorAt(128);                            // the colour of sample 128
//   Ref<Drawing::IPaletteCollection> all = Drawing::PaletteCollection::New();
//   all->Add(grey);
//   Pointer<Drawing::IPalette, 0> found = all->Find(System::LIString(L"Palette.Grey"));
//
// The concrete palettes and collections come from an implementation library.
#pragma once

#include "Quilon_/Drawing/Color.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Charts {
class IChartStyle;
} // namespace Quilon_::Charts

namespace Quilon_::Drawing {

class QUILON_API IPalette : public virtual System::Interface {
    QUILON_INTERFACE(IPalette)
public:
    // The key by which collections find the palette.
    virtual System::LIString Name() = 0;
    virtual void SetName(const System::LIString& name) = 0;
    // The whole table, entry 0 first.
    virtual std::vector<Color> Colors() = 0;
    virtual void SetColors(const std::vector<Color>& colors) = 0;
    // The colour of sample value `index`. Values beyond the table take the
    // nearest end, so that a 256-entry table shows any sample; an empty
    // table shows black.
    virtual Color ColorAt(std::int64_t index) = 0;
};

// A palette made from a few colour stops at sample positions; the table of
// IPalette is the interpolation, resampled to Resolution() entries spread
// evenly from Minimum() to Maximum(). Every change recomputes the table.
class QUILON_API IInterpolatedPalette : public virtual IPalette {
    QUILON_INTERFACE(IInterpolatedPalette)
public:
    virtual std::int64_t StopCount() = 0;
    virtual double StopPosition(std::int64_t stop) = 0;
    virtual Color StopColor(std::int64_t stop) = 0;
    // Adds a stop, kept in the order of positions; its index.
    virtual std::int64_t AddStop(double position, Color color) = 0;
    virtual void SetStop(std::int64_t stop, double position, Color color) = 0;
    // False when `stop` is no index of a stop.
    virtual bool RemoveStop(std::int64_t stop) = 0;
    virtual void ClearStops() = 0;
    virtual double Minimum() = 0;
    virtual double Maximum() = 0;
    virtual void SetRange(double minimum, double maximum) = 0;
    // The number of entries of the table, at least 1.
    virtual std::int64_t Resolution() = 0;
    virtual void SetResolution(std::int64_t entries) = 0;
    // The interpolated colour at `value`, not rounded to a table entry;
    // values outside the stops take the colour of the nearest stop.
    virtual Color Interpolate(double value) = 0;
    // Mirrors the stops within the range: the last colour comes first.
    virtual void Reverse() = 0;
};

class QUILON_API IPaletteCollection : public virtual System::Collections::Template::ICollection<IPalette> {
    QUILON_INTERFACE(IPaletteCollection)
public:
    // The first palette whose name equals `name` (value and flag), or null.
    virtual System::Pointer<IPalette, 0> Find(const System::LIString& name) = 0;
    // Its position, -1 if none.
    virtual std::int64_t IndexOfName(const System::LIString& name) = 0;
    virtual bool Contains(const System::LIString& name) = 0;
    // Removes the first palette of that name; false if none.
    virtual bool RemoveByName(const System::LIString& name) = 0;
    // Adds `palette`, or puts it in the place of the palette of the same
    // name; its position.
    virtual std::int64_t AddOrReplace(const System::Ref<IPalette>& palette) = 0;
    virtual void AddRange(const std::vector<System::Ref<IPalette>>& palettes) = 0;
    // Every palette of `other` by AddOrReplace, or only those whose name is
    // not held yet when `replace` is false.
    virtual void Merge(const System::Ref<IPaletteCollection>& other, bool replace) = 0;
    // Names in the order of the collection.
    virtual std::vector<System::LIString> Names() = 0;
    virtual std::vector<System::Ref<IPalette>> ToVector() = 0;
    // Gives the palette named `from` the name `to`; false if none is named
    // `from`.
    virtual bool Rename(const System::LIString& from, const System::LIString& to) = 0;
    // Orders the palettes by the values of their names.
    virtual void SortByName() = 0;
    // The palette that views use for an image without one; null if unset.
    virtual System::Pointer<IPalette, 0> DefaultPalette() = 0;
    virtual void SetDefaultPalette(const System::Pointer<IPalette, 0>& palette) = 0;
};

namespace Palette {
// New(name, colours): a table palette.
using Factory = System::Functions::Template::Factory<System::Ref<IPalette>(const System::LIString&,
                                                                           const std::vector<Color>&)>;
extern QUILON_API Factory New;

// The style that charts of palettes are drawn with by default, a
// per-thread setting.
QUILON_API System::Ref<Charts::IChartStyle> DefaultChartStyle();
QUILON_API void SetDefaultChartStyle(System::Ref<Charts::IChartStyle> value);
QUILON_API void ClearDefaultChartStyle();
} // namespace Palette

namespace InterpolatedPalette {
// New(name, from, to): a ramp of 256 entries over [0, 255] with stops at
// both ends.
using Factory = System::Functions::Template::Factory<System::Ref<IInterpolatedPalette>(
    const System::LIString&, Color, Color)>;
extern QUILON_API Factory New;
} // namespace InterpolatedPalette

namespace PaletteCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IPaletteCollection>()>;
extern QUILON_API Factory New;
} // namespace PaletteCollection

} // namespace Quilon_::Drawing
