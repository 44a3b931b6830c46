// The process-wide dictionary from class names, as the type dictionary
// holds them, to the factories that make empty instances of the classes.
//
//   Serialization::Factories()->Add(L"Quilon_::Basic::CPolygon", Serialization::Factory(&NewEmptyPolygon,
//   4000)); if (Serialization::Factories()->ContainsKey(name)) made =
//   Serialization::Factories()->Item(name)();
#pragma once

#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Serialization/Factory.h"

#include <string>
#include <typeinfo>

namespace Quilon_::System {

namespace Collections::Template {
template <>
QUILON_API const Type& IValueDictionary<std::wstring, Serialization::Factory>::GetType();
}

namespace Serialization {

class QUILON_API IFactoryDictionary : public Collections::Template::IValueDictionary<std::wstring, Factory> {
    QUILON_INTERFACE(IFactoryDictionary)
};

namespace FactoryDictionary {
// Makes an empty dictionary; the core's own is the default implementation.
extern QUILON_API Functions::Template::Function<Pointer<IFactoryDictionary, 1> (*)()> New;
} // namespace FactoryDictionary

// Made by FactoryDictionary::New on first use; lives to the end of the
// process.
QUILON_API Pointer<IFactoryDictionary, 1> Factories();

// Registers class C for reading from archives, under the name by which
// archives know it (its full name, System::Detail::QualifiedTypeName):
// `newEmpty` makes the instance that is then read into. SetItem, so that a
// second start-up finds the entry in place.
//
//   Serialization::RegisterClass<CMatrixD>(&NewEmptyMatrix);
template <class C>
void RegisterClass(Pointer<Interface, 1> (*newEmpty)(), unsigned short minimumVersion = OldestVersion)
{
    Factories()->SetItem(System::Detail::QualifiedTypeName(typeid(C)), Factory(newEmpty, minimumVersion));
}

} // namespace Serialization

} // namespace Quilon_::System
