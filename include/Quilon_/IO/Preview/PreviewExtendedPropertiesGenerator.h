// Makers of the properties a preview shows beside a thumbnail (size, data
// type, date), read cheaply from a file, one object per format.
//
//   Ref<IO::Preview::IPreviewExtendedPropertiesGenerator> maker = ...;
//   if (maker->CanGenerate(L"cells.tif"))
//       maker->Generate(L"cells.tif", container);   // adds the properties
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <string>
#include <vector>

namespace Quilon_::System {
class IExtendedPropertiesContainer;
} // namespace Quilon_::System

namespace Quilon_::IO::Preview {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IPreviewExtendedPropertiesGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IPreviewExtendedPropertiesGenerator)
public:
    // 1. A short name for lists and messages.
    virtual std::wstring Name() = 0;
    // 2. The extensions of the files it knows, lower case, without the dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. Whether it can describe the file.
    virtual bool CanGenerate(const std::wstring& fileName) = 0;
    // 4. Adds the file's preview properties to `container`.
    virtual void Generate(const std::wstring& fileName,
                          System::Ref<System::IExtendedPropertiesContainer> container) = 0;
};

class QUILON_API IPreviewExtendedPropertiesGeneratorCollection
    : public virtual System::Collections::Template::ICollection<IPreviewExtendedPropertiesGenerator> {
    QUILON_INTERFACE(IPreviewExtendedPropertiesGeneratorCollection)
};

namespace PreviewExtendedPropertiesGeneratorCollection {
using Factory =
    System::Functions::Template::Factory<System::Ref<IPreviewExtendedPropertiesGeneratorCollection>()>;
extern QUILON_API Factory New;
} // namespace PreviewExtendedPropertiesGeneratorCollection

} // namespace Quilon_::IO::Preview
