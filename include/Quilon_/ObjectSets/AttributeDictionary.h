// The columns of an object set by name, in insertion order. Whether names
// are compared with their case is fixed when the dictionary is made, from
// Globals::CaseSensitiveAttributes():
//
//   Ref<ObjectSets::IAttributeDictionary> columns = set->Attributes();
//   System::Pointer<ObjectSets::IAttribute, 0> area = columns->Find(L"area");   // "Area" too, by default
//   columns->Rename(L"Area", L"Size");
#pragma once

#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/String.h"

#include <cstdint>

namespace Quilon_::ObjectSets {
class IAttribute;
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IDictionary<LIString, ObjectSets::IAttribute>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

class QUILON_API IAttributeDictionary
    : public System::Collections::Template::IDictionary<System::LIString, IAttribute> {
    QUILON_INTERFACE(IAttributeDictionary)
public:
    virtual System::Pointer<IObjectSet, 0> ObjectSet() = 0;
    // The column of that name; empty when absent.
    virtual System::Pointer<IAttribute, 0> Find(const System::LIString& name) = 0;
    // Its position in iteration order; -1 when absent.
    virtual std::int64_t IndexOf(const System::LIString& name) = 0;
    virtual System::Ref<IAttribute> ItemAt(std::int64_t index) = 0;
    // Renames the column, keeping its place.
    virtual void Rename(const System::LIString& from, const System::LIString& to) = 0;
    // The setting read when the dictionary was made.
    virtual bool CaseSensitive() = 0;
};

} // namespace Quilon_::ObjectSets
