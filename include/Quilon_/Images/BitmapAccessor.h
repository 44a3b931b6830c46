// Reaching single samples of a bitmap by location.
//
// An accessor reads and writes a sample at a location, whatever the sample
// type; a locator is a cursor that walks a bitmap axis by axis and gives the
// address of the sample under it:
//
//   Pointer<IBitmapAccessor> accessor = BitmapAccessor::New(bitmap);
//   accessor->SetValue(Quilon_::Geometry::Coordinates::New(2, 1, Quilon_::Geometry::Axes::aXY),
//   System::ToAny(7.0));
//
//   Pointer<IBitmapLocator> locator = BitmapLocator::New(bitmap);
//   locator->SetLocation(Quilon_::Geometry::Coordinates::New(0, 5, Quilon_::Geometry::Axes::aXY));
//   auto* row = static_cast<std::uint8_t*>(locator->Address());   // row 5
//   locator->Move(Quilon_::Geometry::aY, 1);                               // row 6
//
// Both are for code that reaches a few samples; loops over every pixel take
// the address and the strides of the bitmap (IBitmap::Strides()) once.
#pragma once

#include "Quilon_/Images/Bitmap.h"

#include <cstdint>

namespace Quilon_::Images {

class QUILON_API IBitmapAccessor : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapAccessor)
public:
    virtual System::Pointer<IBitmap, 1> Bitmap() = 0;
    // The sample at `location`, boxed as its own C++ type (unsigned char for
    // ntUInt8, char for ntInt8, double for ntDouble, ...); raises outside the
    // bitmap.
    virtual System::Any Value(System::Pointer<Quilon_::Geometry::ICoordinates, 1> location) = 0;
    // Writes `value`, read as a number and converted to the sample type
    // with saturation.
    virtual void SetValue(System::Pointer<Quilon_::Geometry::ICoordinates, 1> location,
                          const System::Any& value) = 0;
    // The address of the sample at `location`.
    virtual void* Address(System::Pointer<Quilon_::Geometry::ICoordinates, 1> location) = 0;
};

class QUILON_API IBitmapLocator : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapLocator)
public:
    // Moves the cursor to `location`; raises outside the bitmap.
    virtual void SetLocation(System::Pointer<Quilon_::Geometry::ICoordinates, 1> location) = 0;
    // Moves the cursor `steps` samples along `axis`; raises when it would
    // leave the bitmap.
    virtual void Move(Quilon_::Geometry::AxisEnum axis, std::int64_t steps) = 0;
    // The address of the sample under the cursor.
    virtual void* Address() = 0;
};

namespace BitmapAccessor {
using Factory =
    System::Functions::Template::Factory<System::Pointer<IBitmapAccessor, 1>(System::Pointer<IBitmap, 1>)>;
extern QUILON_API Factory New;
} // namespace BitmapAccessor

namespace BitmapLocator {
using Factory =
    System::Functions::Template::Factory<System::Pointer<IBitmapLocator, 1>(System::Pointer<IBitmap, 1>)>;
extern QUILON_API Factory New;
} // namespace BitmapLocator

// A locator for bitmaps of a uniform format only, which it may walk by
// strides alone.
namespace UniformFormatLocator {
using Factory =
    System::Functions::Template::Factory<System::Pointer<IBitmapLocator, 1>(System::Pointer<IBitmap, 1>)>;
extern QUILON_API Factory New;
} // namespace UniformFormatLocator

} // namespace Quilon_::Images
