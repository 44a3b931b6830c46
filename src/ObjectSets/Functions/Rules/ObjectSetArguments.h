// How the object-set rules read their arguments, and the compatibility
// levels that their flags select.
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::ObjectSets::Functions::Rules::Detail {

// The argument at `index` read as T; an argument of another kind raises
// through the cast, which the operator takes as a failed implementation.
template <class T>
T ArgumentAs(const std::vector<System::Any>& arguments, std::int64_t index)
{
    return arguments.at(static_cast<std::size_t>(index)).CastTo<T>();
}

// The object that the argument at `index` holds; empty when it holds none
// or a value of another kind, for rules that tell kinds of arguments apart.
inline System::Pointer<System::Interface, 0> HeldObject(const std::vector<System::Any>& arguments,
                                                        std::int64_t index)
{
    using Object = System::Pointer<System::Interface, 0>;
    const System::Any& argument = arguments.at(static_cast<std::size_t>(index));
    const System::Detail::AnyHolderBase* holder = argument.Holder();
    const void* value = holder ? holder->ValuePointer(typeid(Object)) : nullptr;
    return value ? *static_cast<const Object*>(value) : Object();
}

// The bits of the compatibility flags.
inline constexpr unsigned short sameCount = 1;
inline constexpr unsigned short sameKeys = 2;
inline constexpr unsigned short sameObjectSet = 4;
inline constexpr unsigned short waivedWhenEmpty = 8;

// The one test that the flags select: the widest whose bits are all set.
enum class CompatibilityLevel { none, count, keys, objectSet };

inline CompatibilityLevel SelectedLevel(unsigned short flags)
{
    constexpr unsigned short keys = sameCount | sameKeys;
    constexpr unsigned short objectSet = keys | sameObjectSet;
    if ((flags & objectSet) == objectSet)
        return CompatibilityLevel::objectSet;
    if ((flags & keys) == keys)
        return CompatibilityLevel::keys;
    if (flags & sameCount)
        return CompatibilityLevel::count;
    return CompatibilityLevel::none;
}

} // namespace Quilon_::ObjectSets::Functions::Rules::Detail
