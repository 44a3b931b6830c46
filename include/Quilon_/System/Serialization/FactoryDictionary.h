// The process-wide dictionary from class names, as the type dictionary
// holds them, to the factories that make empty instances of the classes.
//
//   Serialization::Factories()->Add(L"Quilon_::Basic::CPolygon", Serialization::Factory(&NewEmptyPolygon, 4000));
//   if (Serialization::Factories()->ContainsKey(name)) made = Serialization::Factories()->Item(name)();
#pragma once

#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/Serialization/Factory.h"

#include <string>

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

} // namespace Serialization

} // namespace Quilon_::System
