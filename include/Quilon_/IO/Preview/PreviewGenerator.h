// A maker of the preview of one file: its thumbnail and its properties
// together, as a viewer's open dialog shows them.
//
//   Ref<IO::Preview::IPreviewGenerator> preview = ...;
//   Ref<Images::IImage> image = preview->Generate(L"cells.tif", container);
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::System {
class IExtendedPropertiesContainer;
} // namespace Quilon_::System

namespace Quilon_::IO::Preview {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IPreviewGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IPreviewGenerator)
public:
    // 1. Whether it can preview the file.
    virtual bool CanGenerate(const std::wstring& fileName) = 0;
    // 2. The preview image of the file; its properties go to `container`.
    virtual System::Ref<Images::IImage>
    Generate(const std::wstring& fileName, System::Ref<System::IExtendedPropertiesContainer> container) = 0;
    // 3. The longest side of the preview images, in pixels.
    virtual void SetMaximumSide(std::int64_t pixels) = 0;
};

} // namespace Quilon_::IO::Preview
