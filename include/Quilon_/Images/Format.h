// Pixel formats: the sample type of a bitmap and the order in which its axes
// lie in memory, and from them the layout of the samples.
//
// A format is mutable. Code that must not disturb a bitmap clones its format
// before changing it:
//
//   Pointer<IFormat> format = UniformFormat::New(StorageOrder::New(L"XYB"));
//   format->SetDataType(System::ntUInt16);
//   format->MemorySize(Quilon_::Geometry::Coordinates::New(640, 480, Quilon_::Geometry::Axes::aXY));   //
//   614400
//
// The concrete formats come from an implementation library through the New
// objects below.
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/NumericType.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Images {

class QUILON_API IFormat : public virtual System::Interface {
    QUILON_INTERFACE(IFormat)
public:
    // The type of every sample.
    virtual System::NumericTypeEnum DataType() = 0;
    virtual void SetDataType(System::NumericTypeEnum type) = 0;
    // The bytes that one sample takes in memory.
    virtual std::int64_t BytesPerSample() = 0;
    // Whether the samples are one-bit values.
    virtual bool IsBinary() = 0;
    // The step in bytes from a sample to the next one along each axis of
    // `size`, in the axis order of `size`; negative on a reversed axis.
    virtual std::vector<std::int64_t> Strides(Quilon_::Geometry::Coordinates::Reference size) = 0;
    // The byte offset of the sample at location 0 (every axis at 0) in a
    // block laid out for `size`; not 0 when an axis is reversed.
    virtual std::int64_t Origin(Quilon_::Geometry::Coordinates::Reference size) = 0;
    // The bytes a bitmap of `size` needs.
    virtual std::int64_t MemorySize(Quilon_::Geometry::Coordinates::Reference size) = 0;
    // The byte offset of the sample at `location` in a block laid out for
    // `size`; raises for a location outside the size.
    virtual std::int64_t Offset(Quilon_::Geometry::Coordinates::Reference size,
                                Quilon_::Geometry::Coordinates::Reference location) = 0;
    virtual System::Pointer<IStorageOrder, 1> StorageOrder() = 0;
    virtual void SetStorageOrder(System::Pointer<IStorageOrder, 1> order) = 0;
    // Whether a bitmap in `other` has its samples laid out as in this format:
    // the same data type and storage order, so that memory copies over.
    virtual bool IsCompatible(System::Pointer<IFormat, 1> other) = 0;
    // Whether a bitmap of `size` can have this format; a format with a fixed
    // number of bands refuses another band count.
    virtual bool Accepts(Quilon_::Geometry::Coordinates::Reference size) = 0;
    // The data type and the order, for messages: "ntUInt8 XYB".
    virtual std::wstring ToString() = 0;
};

// A format with a fixed number of bands, whatever the size says.
class QUILON_API IFixedBandFormat : public virtual System::Interface {
    QUILON_INTERFACE(IFixedBandFormat)
public:
    virtual std::int64_t BandCount() = 0;
    virtual void SetBandCount(std::int64_t count) = 0;
};

// Marks a format whose bands all have the format's data type, so that a
// sample is reached by one stride per axis.
class QUILON_API IUniformFormat : public virtual System::Interface {
    QUILON_INTERFACE(IUniformFormat)
};

// One-bit samples. The stored value of a set sample is configurable (1 for
// arithmetic, 255 for display); any non-zero sample reads as set.
class QUILON_API IBinaryFormat : public IFormat {
    QUILON_INTERFACE(IBinaryFormat)
public:
    virtual std::uint8_t ForegroundValue() = 0;
    virtual void SetForegroundValue(std::uint8_t value) = 0;
};

namespace UniformFormat {
// New(order): a uniform format of type ntUInt8 in `order`.
using Factory =
    System::Functions::Template::Factory<System::Pointer<IFormat, 1>(System::Pointer<IStorageOrder, 1>)>;
extern QUILON_API Factory New;
} // namespace UniformFormat

namespace BinaryFormat {
// New(order): a binary format in `order`, data type ntUInt1.
using Factory = System::Functions::Template::Factory<System::Pointer<IBinaryFormat, 1>(
    System::Pointer<IStorageOrder, 1>)>;
extern QUILON_API Factory New;
} // namespace BinaryFormat

} // namespace Quilon_::Images
