// Writers of the extended properties of an object into a file of its
// format, beside or inside the data (a sidecar, a tag block):
//
//   Ref<IO::IExtendedPropertiesWriter> writer = ...;   // from a Globals list
//   if (writer->CanWrite(container))
//       writer->Write(container, L"cells.tif");
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

namespace Quilon_::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IExtendedPropertiesWriter : public virtual System::Interface {
    QUILON_INTERFACE(IExtendedPropertiesWriter)
public:
    // 1. A short name for lists and messages.
    virtual std::wstring Name() = 0;
    // 2. The extensions of the files it writes to, lower case, no dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. Whether the format can hold the properties of `container`.
    virtual bool CanWrite(System::Ref<System::IExtendedPropertiesContainer> container) = 0;
    // 4. Writes the properties of `container` to `fileName`; raises, naming
    // the file, when it cannot.
    virtual void Write(System::Ref<System::IExtendedPropertiesContainer> container,
                       const std::wstring& fileName) = 0;
};

class QUILON_API IExtendedPropertiesWriterCollection
    : public virtual System::Collections::Template::ICollection<IExtendedPropertiesWriter> {
    QUILON_INTERFACE(IExtendedPropertiesWriterCollection)
};

namespace ExtendedPropertiesWriterCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IExtendedPropertiesWriterCollection>()>;
extern QUILON_API Factory New;
} // namespace ExtendedPropertiesWriterCollection

} // namespace Quilon_::IO
