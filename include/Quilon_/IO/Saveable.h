// An object that knows the file it came from and goes back to, such as a
// document of a viewer or a trained classifier:
//
//   Pointer<IO::ISaveable, 0> saveable(object);
//   if (saveable && saveable->Modified())
//       saveable->Save();                       // to FileName(), through Writer()
//   saveable->SaveAs(L"copy.csv");              // FileName() becomes "copy.csv"
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <string>

namespace Quilon_::IO {

class IReader;
class IWriter;

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API ISaveable : public virtual System::Interface {
    QUILON_INTERFACE(ISaveable)
public:
    // 1. The file the object is saved to; empty when it has none yet.
    virtual std::wstring FileName() = 0;
    // 2. Names the file without reading or writing it.
    virtual void SetFileName(const std::wstring& fileName) = 0;
    // 3. Whether the object changed since it was last loaded or saved.
    virtual bool Modified() = 0;
    // 4.
    virtual void SetModified(bool modified) = 0;
    // 5. Replaces the object's content with that of `fileName`, which
    // becomes FileName().
    virtual void Load(const std::wstring& fileName) = 0;
    // 6. Writes the object to FileName(); raises when it has none.
    virtual void Save() = 0;
    // 7. Writes the object to `fileName`, which becomes FileName().
    virtual void SaveAs(const std::wstring& fileName) = 0;
    // 8. The reader that Load uses; empty to choose by the file.
    virtual System::Pointer<IReader, 0> Reader() = 0;
    // 9. The writer that Save uses; empty to choose by the extension.
    virtual System::Pointer<IWriter, 0> Writer() = 0;
    // 10. Chooses the writer of Save and SaveAs; empty to choose by the
    // extension.
    virtual void SetWriter(System::Pointer<IWriter, 0> writer) = 0;
};

} // namespace Quilon_::IO
