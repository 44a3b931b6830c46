// The checks that operators and rules over object sets rest on: whether
// attributes are attached, share a set, and whether two sets hold the same
// keys or as many objects.
//
// Every check reports its failure to the error manager. Without `e` it then
// throws; with `e` it leaves the exception in *e and returns false, so that
// a caller can turn the failure into a message of its own:
//
//   ObjectSets::Helper::CheckSameObjectKeys(input, output);   // throws if they differ
//
//   System::Pointer<System::IException, 0> why;
//   if (!ObjectSets::Helper::CheckSpatial(attribute, &why))
//       complain(why->Message());
#pragma once

#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::System {
class Type;
} // namespace Quilon_::System

namespace Quilon_::ObjectSets {
class IAttribute;
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::ObjectSets::Helper {

using ExceptionSlot = System::Pointer<System::IException, 0>*;

// The attribute is attached to a set.
QUILON_API bool CheckObjectSetNotNull(System::Ref<IAttribute> attribute, ExceptionSlot e = nullptr);
// Both are attached, to one and the same set.
QUILON_API bool CheckSameObjectSet(System::Ref<IAttribute> a, System::Ref<IAttribute> b,
                                   ExceptionSlot e = nullptr);
// The same keys in the same order; a set always agrees with itself.
QUILON_API bool CheckSameObjectKeys(System::Ref<IObjectSet> a, System::Ref<IObjectSet> b,
                                    ExceptionSlot e = nullptr);
// Both are attached, and their sets have the same keys.
QUILON_API bool CheckSameObjectKeys(System::Ref<IAttribute> a, System::Ref<IAttribute> b,
                                    ExceptionSlot e = nullptr);
QUILON_API bool CheckSameObjectCount(System::Ref<IObjectSet> a, System::Ref<IObjectSet> b,
                                     ExceptionSlot e = nullptr);
// Both are attached, and their sets have as many objects.
QUILON_API bool CheckSameObjectCount(System::Ref<IAttribute> a, System::Ref<IAttribute> b,
                                     ExceptionSlot e = nullptr);
// The attribute's data type is `type`.
QUILON_API bool CheckType(System::Ref<IAttribute> attribute, const System::Type& type,
                          ExceptionSlot e = nullptr);
// The attribute is a spatial attribute.
QUILON_API bool CheckSpatial(System::Ref<IAttribute> attribute, ExceptionSlot e = nullptr);

} // namespace Quilon_::ObjectSets::Helper
