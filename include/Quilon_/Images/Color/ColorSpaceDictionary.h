// The colour spaces of the process, by name, and the process' settings of
// colour: the dictionary and the space that colour images get by default.
//
//   Ref<Color::IColorSpaceDictionary> spaces = Color::Globals::ColorSpaces();
//   spaces->Add(space);                                  // under space->Name()
//   Pointer<Color::IColorSpace, 0> rgb = spaces->Find(L"RGB");
//   Pointer<Color::IColorSpace, 0> fallback = Color::Globals::DefaultColorSpace();   // may be null
//
// Both settings hold one value per thread, a thread's first read cloning
// what the main thread set. An implementation library fills the dictionary
// at start-up; ColorSpaces() raises as a null reference does before.
// ClearColorSpaces() drops the dictionary of every thread;
// ClearCollectionColorSpaces() empties the calling thread's and keeps it.
#pragma once

#include "Quilon_/Images/Color/ColorSpace.h"
#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/GlobalVariable.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IDictionary<std::wstring, Images::Color::IColorSpace>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Images::Color {

class QUILON_API IColorSpaceDictionary
    : public System::Collections::Template::IDictionary<std::wstring, IColorSpace> {
    QUILON_INTERFACE(IColorSpaceDictionary)
public:
    // The space of that name, or null.
    virtual System::Pointer<IColorSpace, 0> Find(const std::wstring& name) = 0;
    // Adds `space` under its own name.
    virtual void Add(System::Ref<IColorSpace> space) = 0;
    // Replaces the space of the same name, or adds it.
    virtual void SetSpace(System::Ref<IColorSpace> space) = 0;
    virtual void AddRange(const std::vector<System::Ref<IColorSpace>>& spaces) = 0;
    // Removes the entry that holds that very space; false if none does.
    virtual bool RemoveSpace(System::Ref<IColorSpace> space) = 0;
    // Whether that very space is held.
    virtual bool ContainsSpace(System::Ref<IColorSpace> space) = 0;
    // Every space, in the order of Keys().
    virtual std::vector<System::Ref<IColorSpace>> Spaces() = 0;
    // The first space of that display name (compared by text), or null.
    virtual System::Pointer<IColorSpace, 0> FindByDisplayName(const System::LIString& name) = 0;
    // The spaces of `count` bands.
    virtual std::vector<System::Ref<IColorSpace>> WithBandCount(std::int64_t count) = 0;
    // The first space compatible with `space`, or null.
    virtual System::Pointer<IColorSpace, 0> FindCompatible(System::Ref<IColorSpace> space) = 0;

    using System::Collections::Template::IDictionary<std::wstring, IColorSpace>::Add;
};

namespace ColorSpaceDictionary {
using Factory = System::Functions::Template::Factory<System::Ref<IColorSpaceDictionary>()>;
extern QUILON_API Factory New;
} // namespace ColorSpaceDictionary

namespace Globals {
QUILON_DECLARE_SETTING(ColorSpaces, SetColorSpaces, ClearColorSpaces, System::Ref<IColorSpaceDictionary>);
QUILON_API void ClearCollectionColorSpaces();
QUILON_DECLARE_SETTING(DefaultColorSpace, SetDefaultColorSpace, ClearDefaultColorSpace,
                       System::Pointer<IColorSpace, 0>);
} // namespace Globals

} // namespace Quilon_::Images::Color
