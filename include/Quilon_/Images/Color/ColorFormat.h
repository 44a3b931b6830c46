// Colour formats: a format whose bands are the components of a colour, with
// a fixed number of them and, optionally, the colour space they belong to.
//
// Colour bitmaps keep the bands of one location side by side, so their
// order has aB in first place:
//
//   Pointer<Color::IColorFormat> rgb = Color::UniformColorFormat::New(StorageOrder::New(L"BXY"));
//   rgb->BandCount();    // 3
//   rgb->ColorSpace();   // null until a space is given
#pragma once

#include "Quilon_/Images/Color/ColorSpace.h"
#include "Quilon_/Images/Format.h"

namespace Quilon_::Images::Color {

class QUILON_API IColorFormat : public IFormat, public IFixedBandFormat {
    QUILON_INTERFACE(IColorFormat)
public:
    // The space of the bands; null when the bands have no declared meaning.
    virtual System::Pointer<IColorSpace, 0> ColorSpace() = 0;
    virtual void SetColorSpace(System::Pointer<IColorSpace, 0> space) = 0;
};

namespace UniformColorFormat {
// New(order): three bands of type ntUInt8 in `order`, without a space.
using Factory =
    System::Functions::Template::Factory<System::Pointer<IColorFormat, 1>(System::Pointer<IStorageOrder, 1>)>;
extern QUILON_API Factory New;
} // namespace UniformColorFormat

} // namespace Quilon_::Images::Color
