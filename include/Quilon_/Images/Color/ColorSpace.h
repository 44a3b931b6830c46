// Colour spaces: what the bands of a colour bitmap mean. A space has a
// name that identifies it in the process' dictionary, one name and range
// per band, the numeric type of its samples and the significant bits of
// each band:
//
//   Pointer<Color::IColorSpace, 0> space = colorFormat->ColorSpace();
//   if (!space) { /* bands without a declared meaning */ }
//   Ref<Color::IColorSpace> rgb = Color::Globals::ColorSpaces()->Item(L"RGB");
//   rgb->BandCount();          // 3
//   rgb->BandIndex(L"Green");  // 1
#pragma once

#include "Quilon_/Math/Range.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Images::Color {

class QUILON_API IColorSpace : public virtual System::Interface {
    QUILON_INTERFACE(IColorSpace)
public:
    // The identifying name, the key of the dictionary of spaces.
    virtual std::wstring Name() = 0;
    virtual System::LIString DisplayName() = 0;
    // The number of components of a colour.
    virtual std::int64_t BandCount() = 0;
    virtual System::LIString BandName(std::int64_t band) = 0;
    virtual std::vector<System::LIString> BandNames() = 0;
    // The position of the band of that name (compared by text), or -1.
    virtual std::int64_t BandIndex(const System::LIString& name) = 0;
    // The values a band takes; null when the numeric type bounds it.
    virtual System::Pointer<Quilon_::Math::IRangeD, 0> Range(std::int64_t band) = 0;
    virtual std::vector<System::Pointer<Quilon_::Math::IRangeD, 0>> Ranges() = 0;
    virtual System::NumericTypeEnum NumericType() = 0;
    // The significant bits of each band; empty when every bit of the
    // numeric type counts.
    virtual std::vector<std::int64_t> SignificantBits() = 0;
    // Whether colours of `other` are colours of this space: the same name
    // and band count.
    virtual bool IsCompatible(System::Pointer<IColorSpace, 0> other) = 0;
};

namespace ColorSpace {
// New(name, displayName, bandCount, ranges, numericType, significantBits),
// with bands named "Band 0", "Band 1", ...; or with the band names given
// between the ranges and the numeric type.
using Factory = System::Functions::Template::Factory<
    System::Ref<IColorSpace>(const std::wstring&, const System::LIString&, std::int64_t,
                             const std::vector<System::Pointer<Quilon_::Math::IRangeD, 0>>&,
                             System::NumericTypeEnum, std::vector<std::int64_t>),
    System::Ref<IColorSpace>(const std::wstring&, const System::LIString&, std::int64_t,
                             const std::vector<System::Pointer<Quilon_::Math::IRangeD, 0>>&,
                             const std::vector<System::LIString>&, System::NumericTypeEnum,
                             std::vector<std::int64_t>)>;
extern QUILON_API Factory New;
} // namespace ColorSpace

} // namespace Quilon_::Images::Color
