// One object (row) of an object set: its key, and its cells reached by
// attribute name.
//
//   Ref<ObjectSets::IObject> row = set->Objects()->Item(ObjectSets::Key(3));
//   row->SetValue(L"Label", System::ToAny(std::wstring(L"cell")));
//   System::Any area = row->Value(L"Area");   // empty when the cell is unset
//
// A row made by Object::New with no set is detached; a set adopts its rows
// through IObjectInternal.
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"

namespace Quilon_::ObjectSets {

class IObjectSet;

class QUILON_API IObject : public virtual System::Interface {
    QUILON_INTERFACE(IObject)
public:
    virtual Key ObjectKey() = 0;
    // The set the row belongs to; empty when detached.
    virtual System::Pointer<IObjectSet, 0> ObjectSet() = 0;
    // The cell in that column of the set; an empty Any when it is unset.
    virtual System::Any Value(const System::LIString& attributeName) = 0;
    // Writes the cell, converted to the attribute's data type.
    virtual void SetValue(const System::LIString& attributeName, const System::Any& value) = 0;
};

// How a set maintains the rows it holds.
class QUILON_API IObjectInternal : public virtual System::Interface {
    QUILON_INTERFACE(IObjectInternal)
public:
    virtual void SetObjectSet(System::Pointer<IObjectSet, 0> set) = 0;
};

namespace Object {
// A row with its key, in a set or in none.
using Factory =
    System::Functions::Template::Factory<System::Ref<IObject>(Key, System::Pointer<IObjectSet, 0>)>;
extern QUILON_API Factory New;
} // namespace Object

} // namespace Quilon_::ObjectSets
