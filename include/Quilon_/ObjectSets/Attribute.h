// Attributes: the columns of an object set, one value (cell) per object
// under the column's name. The typed families (ScalarAttribute.h,
// StringAttribute.h, VectorAttribute.h, KeyVectorAttribute.h,
// ImageAttribute.h, SpatialAttribute.h) add reads and writes in their own
// value type; this interface reads and writes cells as Any:
//
//   Ref<ObjectSets::IAttribute> area = set->Attributes()->Item(L"Area");
//   area->SetValue(key, System::ToAny(3.5f));   // converted to DataType()
//   if (area->HasValue(key)) use(area->Value(key));
//   Pointer<ObjectSets::IAttribute, 0> attribute(value);
//   if (attribute) { /* share it rather than copying it */ }
//
// An attribute belongs to at most one set; a detached one has an empty
// ObjectSet().
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::ObjectSets {

class IAttributeValue;
class IObjectSet;

class QUILON_API IAttribute : public virtual System::Interface {
    QUILON_INTERFACE(IAttribute)
public:
    virtual System::LIString Name() = 0;
    virtual void SetName(const System::LIString& name) = 0;
    // The Type of the cells: a value kind (DataType.h) or an interface, a
    // shape interface for spatial attributes.
    virtual System::Type DataType() = 0;
    // The set the attribute is attached to; empty when detached.
    virtual System::Pointer<IObjectSet, 0> ObjectSet() = 0;
    // The cell of `key`; an empty Any when it is unset.
    virtual System::Any Value(Key key) = 0;
    // Writes the cell, converted to DataType(); a value of another kind
    // raises the Any cast error.
    virtual void SetValue(Key key, const System::Any& value) = 0;
    virtual bool HasValue(Key key) = 0;
    virtual void RemoveValue(Key key) = 0;
    // Unsets every cell.
    virtual void Clear() = 0;
    // The cell of `key` as an object of its own.
    virtual System::Ref<IAttributeValue> Cell(Key key) = 0;
    // Used by the set that adopts or drops the attribute; empty detaches.
    virtual void Attach(System::Pointer<IObjectSet, 0> set) = 0;
    // A detached copy, with its cells.
    virtual System::Ref<IAttribute> Clone() = 0;
};

} // namespace Quilon_::ObjectSets
