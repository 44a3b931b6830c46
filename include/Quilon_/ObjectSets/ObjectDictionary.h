// The rows of an object set by key. It iterates in insertion order, so the
// keys of a labelling come out in label order, and rows can also be reached
// by position:
//
//   Ref<ObjectSets::IObjectDictionary> rows = set->Objects();
//   for (std::int64_t i = 0; i < rows->Count(); ++i) rows->ItemAt(i)->ObjectKey();
//   rows->IndexOf(ObjectSets::Key(5));   // -1 when absent
//   rows->NextKey();                     // largest key + 1, or 1 when empty
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Collections/Dictionary.h"

#include <cstdint>

namespace Quilon_::ObjectSets {
class IObject;
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IDictionary<ObjectSets::Key, ObjectSets::IObject>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

class QUILON_API IObjectDictionary : public System::Collections::Template::IDictionary<Key, IObject> {
    QUILON_INTERFACE(IObjectDictionary)
public:
    virtual System::Pointer<IObjectSet, 0> ObjectSet() = 0;
    // The largest key + 1, or Key(1) when there is no row.
    virtual Key NextKey() = 0;
    // The position of `key` in iteration order; -1 when absent.
    virtual std::int64_t IndexOf(Key key) = 0;
    virtual Key KeyAt(std::int64_t index) = 0;
    virtual System::Ref<IObject> ItemAt(std::int64_t index) = 0;
};

} // namespace Quilon_::ObjectSets
