// Bitmaps: a block of memory and the size and format that give it a shape.
//
// The samples of a bitmap lie in one IMemory block; the format's storage
// order decides which axis is fastest, and Strides() and Origin() say where
// each sample is, so that code reaches pixels without a call per pixel:
//
//   Pointer<IBitmap> bitmap = Bitmap::New(Quilon_::Geometry::Coordinates::New(640, 480,
//   Quilon_::Geometry::Axes::aXY)); std::vector<std::int64_t> strides = bitmap->Strides();      // {1, 640}
//   for "XY" and ntUInt8 auto* first = static_cast<std::uint8_t*>(bitmap->Memory()->Data()) +
//   bitmap->Origin(); first[2 * strides[0] + 1 * strides[1]] = 255;               // location (2, 1)
//
// Several bitmaps may share one memory block under different formats. The
// concrete bitmaps come from an implementation library through Bitmap::New,
// and so do the functions Pad and Frame.
#pragma once

#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/System/Memory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {
class IShapeND;
}

namespace Quilon_::Images {

class QUILON_API IBitmap : public virtual System::Interface {
    QUILON_INTERFACE(IBitmap)
public:
    // The number of samples along each axis; a copy.
    virtual System::Pointer<Quilon_::Geometry::ICoordinates, 1> Size() = 0;
    // The format itself, not a copy: clone it before changing it.
    virtual System::Pointer<IFormat, 1> Format() = 0;
    // Gives the bitmap a new size and format. The samples at locations in
    // both sizes keep their values, whatever the orders; under another data
    // type each value is converted, rounded and saturated (a complex value
    // keeps its real part in a real type). The other samples are filled by
    // `padding`.
    virtual void Reshape(System::Pointer<Quilon_::Geometry::ICoordinates, 1> size,
                         System::Pointer<IFormat, 1> format, const Padding& padding) = 0;
    // The step in bytes between neighbours along each axis of Size(), in
    // its axis order; negative along a reversed axis.
    virtual std::vector<std::int64_t> Strides() = 0;
    // The memory object that holds the samples.
    virtual System::Pointer<System::IMemory, 1> Memory() = 0;
    // The byte offset in Memory() of the sample at location 0.
    virtual std::int64_t Origin() = 0;
};

// What the owner of a bitmap may change behind its users, for rewrapping a
// block or handing it on.
class QUILON_API IBitmapInternal : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapInternal)
public:
    // Replaces the block; it must hold at least the bytes the layout needs.
    virtual void SetMemory(System::Pointer<System::IMemory, 1> memory) = 0;
    // Replaces the format without moving a byte; the new layout must fit in
    // the present block.
    virtual void SetFormat(System::Pointer<IFormat, 1> format) = 0;
};

namespace Bitmap {

using Ref = System::Pointer<IBitmap, 1>;
using Coordinates = System::Pointer<Quilon_::Geometry::ICoordinates, 1>;
using Shape = System::Pointer<Quilon_::Geometry::IShapeND, 1>;

// New(size): samples of ntUInt8, cleared, in the implementation's default
// order; New(size, format): a cleared block laid out by `format`;
// New(size, format, memory): a bitmap over an existing block.
using Factory =
    System::Functions::Template::Factory<Ref(Coordinates), Ref(Coordinates, System::Pointer<IFormat, 1>),
                                         Ref(Coordinates, System::Pointer<IFormat, 1>,
                                             System::Pointer<System::IMemory, 1>)>;
extern QUILON_API Factory New;

// Fills the samples that `padding` covers: those outside the region that
// the bitmap's last reshaping kept.
QUILON_API void Pad(Ref bitmap, const Padding& padding);
QUILON_DECLARE_FUNCTION_SLOT(Pad, 1, void (*)(Ref, const Padding&));
// Fills the samples outside `shape`.
QUILON_API void Pad(Ref bitmap, Shape shape, const Padding& padding);
QUILON_DECLARE_FUNCTION_SLOT(Pad, 2, void (*)(Ref, Shape, const Padding&));
// Writes `value` on the border of the bitmap.
QUILON_API void Frame(Ref bitmap, const System::Any& value, bool volume);
QUILON_DECLARE_FUNCTION_SLOT(Frame, 1, void (*)(Ref, const System::Any&, bool));
// Writes `value` on the border of `shape` within the bitmap.
QUILON_API void Frame(Ref bitmap, Shape shape, const System::Any& value, bool volume);
QUILON_DECLARE_FUNCTION_SLOT(Frame, 2, void (*)(Ref, Shape, const System::Any&, bool));

} // namespace Bitmap

} // namespace Quilon_::Images
