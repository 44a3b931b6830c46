// Object sets: tables whose rows are objects, identified by Key, and whose
// columns are attributes, identified by name, with one cell per object.
// Segmentation makes them (a shape per region), measurement operators add
// columns to them. The concrete set comes from a library loaded at start-up:
//
//   Ref<ObjectSets::IObjectSet> set = ObjectSets::ObjectSet::New();
//   Ref<ObjectSets::IAttribute> area = set->AddAttribute(L"Area", ObjectSets::DataTypeOf<float>());
//   Ref<ObjectSets::IObject> row = set->AddObject();     // key 1 in an empty set
//   row->SetValue(L"Area", System::ToAny(12.5f));
//   for (ObjectSets::Key key : set->Objects()->Keys()) area->Value(key);
//
// A set offers IExtendedPropertiesContainer through Pointer casts; its
// display name is ExtendedPropertiesHelper::Name(set).
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include <cstdint>

namespace Quilon_::ObjectSets {

class IAttribute;
class IAttributeDictionary;
class IObject;
class IObjectDictionary;

class QUILON_API IObjectSet : public virtual System::Interface {
    QUILON_INTERFACE(IObjectSet)
public:
    // The rows by key, in the order they were added.
    virtual System::Ref<IObjectDictionary> Objects() = 0;
    // The columns by name, in the order they were added.
    virtual System::Ref<IAttributeDictionary> Attributes() = 0;
    // A new row under Objects()->NextKey().
    virtual System::Ref<IObject> AddObject() = 0;
    // A new row under `key`; a key already present is the dictionary's error.
    virtual System::Ref<IObject> AddObject(Key key) = 0;
    // Removes the row and its cells in every attribute; false when absent.
    virtual bool RemoveObject(Key key) = 0;
    // A new column made by Globals::AttributeFactories() for `dataType` and
    // attached to this set; a name already present is the dictionary's error.
    virtual System::Ref<IAttribute> AddAttribute(const System::LIString& name,
                                                 const System::Type& dataType) = 0;
    // Detaches the column and removes it; false when absent.
    virtual bool RemoveAttribute(const System::LIString& name) = 0;
    // Removes every row and every column.
    virtual void Clear() = 0;
    // A deep copy: rows, columns and cells.
    virtual System::Ref<IObjectSet> Copy() = 0;
    // The number of rows.
    virtual std::int64_t Count() = 0;
};

namespace ObjectSet {
using Factory = System::Functions::Template::Factory<System::Ref<IObjectSet>()>;
extern QUILON_API Factory New;
} // namespace ObjectSet

} // namespace Quilon_::ObjectSets
