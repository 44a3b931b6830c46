// The identity of an object (a row) in an object set: one signed 64-bit
// integer, compared by value. Two sets may hold the same keys, which is how
// a key-vector cell or a matching result links rows across sets.
//
//   ObjectSets::Key key(17);
//   set->Objects()->Item(key);
//   std::unordered_set<ObjectSets::Key> seen{key};
//   writer << key;   // 4 bytes in a 32-bit stream, when the value fits
#pragma once

#include "Quilon_/System/Any.h"

#include <compare>
#include <cstdint>
#include <functional>
#include <ostream>
#include <vector>

namespace Quilon_::ObjectSets {

class Key {
public:
    constexpr Key() noexcept = default;
    constexpr explicit Key(std::int64_t value) noexcept : m_value(value) {}

    constexpr std::int64_t Value() const noexcept { return m_value; }

    friend constexpr bool operator==(const Key&, const Key&) noexcept = default;
    friend constexpr auto operator<=>(const Key&, const Key&) noexcept = default;

private:
    std::int64_t m_value = 0;
};

// Messages and traces show a key as its number.
template <class Char>
std::basic_ostream<Char>& operator<<(std::basic_ostream<Char>& stream, const Key& key)
{
    return stream << key.Value();
}

} // namespace Quilon_::ObjectSets

template <>
struct std::hash<Quilon_::ObjectSets::Key> {
    std::size_t operator()(const Quilon_::ObjectSets::Key& key) const noexcept
    {
        return std::hash<std::int64_t>()(key.Value());
    }
};

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::Key& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Key>& value);
} // namespace Quilon_::System

namespace Quilon_::System::Serialization::Binary {
class IWriter;
class IReader;
// A key is a counted integer: 8 bytes, or 4 in a 32-bit stream, where a value
// that does not fit raises "Int value exceeds 32 bits storage: '%1%'".
QUILON_API System::Pointer<IWriter, 1> operator<<(System::Pointer<IWriter, 1> writer,
                                                  const ObjectSets::Key& value);
QUILON_API System::Pointer<IReader, 1> operator>>(System::Pointer<IReader, 1> reader, ObjectSets::Key& value);
} // namespace Quilon_::System::Serialization::Binary
