// Makers of thumbnails: small images of a file's content for browsers and
// open dialogs, one object per format.
//
//   Ref<IO::Preview::IThumbnailsGenerator> maker = ...;   // from IO::Preview::Globals
//   if (maker->CanGenerate(L"cells.tif"))
//       Ref<Images::IImage> small = maker->Generate(L"cells.tif", 128);
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::IO::Preview {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IThumbnailsGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IThumbnailsGenerator)
public:
    // 1. A short name for lists and messages.
    virtual std::wstring Name() = 0;
    // 2. The extensions of the files it knows, lower case, without the dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. Whether it can make a thumbnail of the file.
    virtual bool CanGenerate(const std::wstring& fileName) = 0;
    // 4. The thumbnail, no side longer than `maximumSide` pixels; raises,
    // naming the file, when it cannot be read.
    virtual System::Ref<Images::IImage> Generate(const std::wstring& fileName, std::int64_t maximumSide) = 0;
};

class QUILON_API IThumbnailsGeneratorCollection
    : public virtual System::Collections::Template::ICollection<IThumbnailsGenerator> {
    QUILON_INTERFACE(IThumbnailsGeneratorCollection)
};

namespace ThumbnailsGeneratorCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IThumbnailsGeneratorCollection>()>;
extern QUILON_API Factory New;
} // namespace ThumbnailsGeneratorCollection

} // namespace Quilon_::IO::Preview
