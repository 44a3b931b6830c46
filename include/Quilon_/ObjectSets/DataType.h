// The run-time types by which attributes are made and checked: the data
// type of an attribute is the Type of its cell values. Interfaces have
// theirs (IImage::GetType()); the value kinds of the attribute families get
// theirs here, named as Helper::TypeName presents them ("int", "float",
// "std::wstring", "std::vector<int>", ...).
//
//   set->AddAttribute(L"Area", ObjectSets::DataTypeOf<float>());
//   set->AddAttribute(L"Shape", ObjectSets::DataTypeOf<Geometry::TwoD::IBitmapShape>());
//   Globals::AttributeFactories()->Supports(ObjectSets::DataTypeOf<std::int32_t>());
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace Quilon_::ObjectSets {

namespace Detail {
// Defined for the value kinds that attributes hold, and no others.
template <class T>
const System::Type& ValueDataType();
template <>
QUILON_API const System::Type& ValueDataType<double>();
template <>
QUILON_API const System::Type& ValueDataType<std::int32_t>();
template <>
QUILON_API const System::Type& ValueDataType<float>();
template <>
QUILON_API const System::Type& ValueDataType<std::wstring>();
template <>
QUILON_API const System::Type& ValueDataType<std::vector<double>>();
template <>
QUILON_API const System::Type& ValueDataType<std::vector<std::int32_t>>();
template <>
QUILON_API const System::Type& ValueDataType<std::vector<float>>();
template <>
QUILON_API const System::Type& ValueDataType<std::vector<Key>>();
} // namespace Detail

// The Type of cells of type T: an interface's own, or the value kind's.
template <class T>
const System::Type& DataTypeOf()
{
    if constexpr (std::is_base_of_v<System::Interface, T>)
        return T::GetType();
    else
        return Detail::ValueDataType<T>();
}

} // namespace Quilon_::ObjectSets
