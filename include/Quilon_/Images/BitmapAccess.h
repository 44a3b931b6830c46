// Accesses: a bitmap's pixels opened for a purpose, limited by an optional
// shape and an optional mask.
//
// Whoever holds pixels (a bitmap, an image) offers them through
// IBitmapAccessProvider; code asks for an access with properties and works
// on the bitmap the access exposes until it drops the access:
//
//   Pointer<IBitmapAccessProperties> properties = BitmapAccessProperties::New();
//   properties->SetOptions(baoMemory);
//   Pointer<IBitmapAccessProvider> provider = image;          // interface cast
//   Pointer<IBitmapAccess> access = provider->Access(properties);
//   Pointer<System::IMemory> memory = access->Bitmap()->Memory();
//
// An access fires its Destroyed event when it goes away.
#pragma once

#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/System/DestructionEvents.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {

// What an access is for; the flags combine.
enum BitmapAccessOptionsEnumTag : std::int32_t {
    // Reach the memory as it is, with no promise about reading or writing.
    baoMemory = 1,
    // The samples are read.
    baoRead = 2,
    // The samples are written; an access on a copy writes it back when it
    // is closed.
    baoWrite = 4,
    baoReadWrite = 6,
};
using BitmapAccessOptionsEnum = BitmapAccessOptionsEnumTag;

class QUILON_API IBitmapAccess : public System::IDestructionEvents {
    QUILON_INTERFACE(IBitmapAccess)
public:
    virtual BitmapAccessOptionsEnum Options() = 0;
    // The bitmap that this access exposes.
    virtual System::Pointer<IBitmap, 1> Bitmap() = 0;
    // The region the access is limited to; null for the whole bitmap.
    virtual System::Pointer<Quilon_::Geometry::IShapeND, 0> Shape() = 0;
    // The samples the access is limited to, where the mask is not 0; null
    // for all.
    virtual System::Pointer<IBitmap, 0> Mask() = 0;
    // Whether Bitmap() is a copy of the provider's pixels rather than them.
    virtual bool IsCopy() = 0;
    virtual bool IsOpen() = 0;
    // Ends the access: a copy opened for writing goes back to the source.
    // Dropping the last reference closes an open access too.
    virtual void Close() = 0;
};

// What to ask for when an access is opened.
class QUILON_API IBitmapAccessProperties : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapAccessProperties)
public:
    virtual BitmapAccessOptionsEnum Options() = 0;
    // The options of the access to open.
    virtual void SetOptions(BitmapAccessOptionsEnum options) = 0;
    virtual System::Pointer<Quilon_::Geometry::IShapeND, 0> Shape() = 0;
    virtual void SetShape(System::Pointer<Quilon_::Geometry::IShapeND, 0> shape) = 0;
    virtual System::Pointer<IBitmap, 0> Mask() = 0;
    virtual void SetMask(System::Pointer<IBitmap, 0> mask) = 0;
    // Whether the access works on a copy of the pixels.
    virtual bool Copy() = 0;
    virtual void SetCopy(bool copy) = 0;
    // The format the caller wants the pixels in; null for the provider's own.
    virtual System::Pointer<IFormat, 0> Format() = 0;
    virtual void SetFormat(System::Pointer<IFormat, 0> format) = 0;
};

class QUILON_API IBitmapAccessProvider : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapAccessProvider)
public:
    // Opens an access on the provider's pixels as `properties` ask.
    virtual System::Pointer<IBitmapAccess, 1>
    Access(System::Pointer<IBitmapAccessProperties, 1> properties) = 0;
};

namespace BitmapAccess {
// New(bitmap, shape, mask, options, copy): with `copy` the access exposes a
// copy of `bitmap`, written back on Close() when `options` has baoWrite.
using Factory = System::Functions::Template::Factory<System::Pointer<IBitmapAccess, 1>(
    System::Pointer<IBitmap, 1>, System::Pointer<Quilon_::Geometry::IShapeND, 0>, System::Pointer<IBitmap, 0>,
    BitmapAccessOptionsEnum, bool)>;
extern QUILON_API Factory New;
} // namespace BitmapAccess

namespace BitmapAccessProperties {
// New(): options baoMemory, no shape, no mask, no copy, the provider's format.
using Factory = System::Functions::Template::Factory<System::Pointer<IBitmapAccessProperties, 1>()>;
extern QUILON_API Factory New;
} // namespace BitmapAccessProperties

} // namespace Quilon_::Images

namespace Quilon_::System {
QUILON_API std::wstring ToString(Images::BitmapAccessOptionsEnum value);
QUILON_API Any ToAny(const Images::BitmapAccessOptionsEnum& value);
} // namespace Quilon_::System
