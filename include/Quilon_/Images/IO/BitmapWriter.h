// Bitmap writers: one object per file format, which says how well its
// format stores an image and writes it.
//
// Implementation libraries add their writers to
// Images::IO::Globals::BitmapWriters(); the operator
// Images::IO::Functions::Write picks, among the writers of the file's
// extension, the one that converts least. Used directly:
//
//   Ref<IBitmapWriter> writer = ...;
//   System::Nullable<IO::ConversionOptionsEnum> how = writer->Conversion(image);
//   if (how.HasValue())
//       writer->Write(image, L"result.png");
//
// A writer never leaves a half-written file: it writes beside the target
// and renames at the end, so a failure leaves the target as it was.
#pragma once

#include "Quilon_/IO/ConversionOptions.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/System/Nullable.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <string>
#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IBitmapWriter : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapWriter)
public:
    // 1. A short name for lists and messages: "PNG".
    virtual std::wstring Name() = 0;
    // 2. The extensions it writes, lower case, without the dot; the first
    // is the one it prefers.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. How `image` would be stored; no value when the format cannot hold
    // it at all (a complex image, a band count the format has not).
    virtual System::Nullable<Quilon_::IO::ConversionOptionsEnum> Conversion(System::Ref<IImage> image) = 0;
    // 4. Writes `image` to `fileName`, converting as Conversion says;
    // raises, naming the file, when it cannot.
    virtual void Write(System::Ref<IImage> image, const std::wstring& fileName) = 0;
};

class QUILON_API IBitmapWriterCollection
    : public virtual System::Collections::Template::ICollection<IBitmapWriter> {
    QUILON_INTERFACE(IBitmapWriterCollection)
};

namespace BitmapWriterCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IBitmapWriterCollection>()>;
extern QUILON_API Factory New;
} // namespace BitmapWriterCollection

// Medical image files need identifiers unique in the world for studies,
// series and instances; the writer of that format asks for them here.
namespace DICOMWriter {
// A new unique identifier under the organisation root `root`.
QUILON_API std::wstring GenerateUniqueIdentifier(const std::wstring& root);
QUILON_DECLARE_FUNCTION_SLOT(GenerateUniqueIdentifier, 1, std::wstring (*)(const std::wstring&));
} // namespace DICOMWriter

} // namespace Quilon_::Images::IO
