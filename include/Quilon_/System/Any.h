// One value of any type known to the toolkit.
//
// Any is how operator arguments pass through rules and how properties store
// values. Enumerations are stored as int64, interface references as
// Pointer<Interface,0>, so that one test reads any interface out of it:
//
//   Any a = ToAny(42);
//   a.CastTo<int>();            // 42
//   a.CastTo<double>();         // raises: no numeric conversion here
//   Any p = ToAny(Pointer<IThing>(thing));
//   p.CastTo<Pointer<IOther, 0>>();   // the interface cast
//
// ToAny has one exported overload per boxed kind; a domain that adds a
// value class declares its overload next to the class and defines it with
// Detail::Box. Types without an overload of their own are boxed by the
// template at the end of this file, in the same holder, so that a value
// reads alike whichever of the two boxed it.
#pragma once

#include "Quilon_/System/Pointer.h"

#include <concepts>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Quilon_::System {

class Any;
class LIString;
class Type;

namespace Detail {

class QUILON_API AnyHolderBase {
public:
    virtual ~AnyHolderBase();
    // True if `other` holds a value of the same type that compares equal.
    virtual bool Equals(const Any& other) const = 0;
    virtual AnyHolderBase* Clone() const = 0;
    // The address of the stored value if `type` is the holder's type,
    // compared by name so that the test works across libraries.
    virtual const void* ValuePointer(const std::type_info& type) const = 0;
    // The declared type of the stored value.
    virtual const std::type_info& TypeInfo() const = 0;

    static void* operator new(std::size_t size);
    static void operator delete(void* block) noexcept;
};

QUILON_API bool SameType(const std::type_info& a, const std::type_info& b) noexcept;

template <class T>
struct IsPointer : std::false_type {};
template <class I, int N>
struct IsPointer<Template::Pointer<I, N>> : std::true_type {
};

// The type under which a value of type T is boxed. The 64-bit integers
// that are not std::int64_t or std::uint64_t themselves (long long here, long
// elsewhere) are the same numbers, and present themselves by the same name:
// they are boxed as std::int64_t or std::uint64_t, alone and in vectors, so
// that one holder stands for each name and every reader of an Any (Helper,
// archives, CastTo of either spelling) sees one type.
template <class T>
struct Canonical {
    using Type = T;
};
template <class T>
requires(std::is_integral_v<T> && sizeof(T) == 8 && !std::is_same_v<T, std::int64_t> &&
         !std::is_same_v<T, std::uint64_t>) struct Canonical<T> {
    using Type = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
};
template <class T>
struct Canonical<std::vector<T>> {
    using Type = std::vector<typename Canonical<T>::Type>;
};
template <class T>
using CanonicalType = typename Canonical<T>::Type;

template <class T>
struct IsVector : std::false_type {
};
template <class T>
struct IsVector<std::vector<T>> : std::true_type {
};

// `value` as type To, where To and From differ at most in the spelling of
// their 64-bit integers.
template <class To, class From>
To Respell(const From& value)
{
    if constexpr (IsVector<To>::value && IsVector<From>::value && !std::is_same_v<To, From>)
        return To(value.begin(), value.end());
    else
        return static_cast<To>(value);
}

// How a value of type T is presented and stored.
template <class T, class = void>
struct AnyTraits {
    using Presented = CanonicalType<T>;
    using Stored = CanonicalType<T>;
};
template <class E>
struct AnyTraits<E, std::enable_if_t<std::is_enum_v<E>>> {
    using Presented = E;
    using Stored = std::int64_t;
};
template <class T>
struct AnyTraits<T, std::enable_if_t<IsPointer<T>::value>> {
    using Presented = Template::Pointer<Interface, 0>;
    using Stored = Template::Pointer<Interface, 0>;
};

template <class T, class S>
class QUILON_API AnyHolder : public AnyHolderBase {
public:
    explicit AnyHolder(const S& value) : m_value(value) {}
    bool Equals(const Any& other) const override;
    AnyHolderBase* Clone() const override { return new AnyHolder(m_value); }
    const void* ValuePointer(const std::type_info& type) const override
    {
        return SameType(type, typeid(T)) ? &m_value : nullptr;
    }
    const std::type_info& TypeInfo() const override { return typeid(T); }
    const S& Value() const { return m_value; }

private:
    S m_value;
};

[[noreturn]] QUILON_API void RaiseEmptyAnyCast(const std::type_info& target);
[[noreturn]] QUILON_API void RaiseAnyCast(const std::type_info& source, const std::type_info& target);

} // namespace Detail

class QUILON_API Any {
public:
    Any() noexcept = default;
    // Takes ownership of `holder`.
    explicit Any(Detail::AnyHolderBase* holder) noexcept : m_holder(holder) {}
    Any(const Any& other) : m_holder(other.m_holder ? other.m_holder->Clone() : nullptr) {}
    Any(Any&& other) noexcept : m_holder(std::exchange(other.m_holder, nullptr)) {}
    ~Any() { delete m_holder; }

    Any& operator=(const Any& other)
    {
        Any copy(other);
        Swap(copy);
        return *this;
    }
    Any& operator=(Any&& other) noexcept
    {
        Any moved(std::move(other));
        Swap(moved);
        return *this;
    }

    void Swap(Any& other) noexcept { std::swap(m_holder, other.m_holder); }
    bool IsEmpty() const noexcept { return m_holder == nullptr; }
    // The declared type of the value; typeid(void) when empty.
    const std::type_info& TypeInfo() const noexcept { return m_holder ? m_holder->TypeInfo() : typeid(void); }
    const Detail::AnyHolderBase* Holder() const noexcept { return m_holder; }

    bool operator==(const Any& other) const
    {
        if (!m_holder || !other.m_holder)
            return !m_holder && !other.m_holder;
        return m_holder->Equals(other);
    }

    // A copy of the value as T. No numeric conversion: an int does not read
    // as a double (Helper::ScalarValue does that).
    template <class T>
    T CastTo() const
    {
        static_assert(!std::is_reference_v<T>, "CastTo returns a copy");
        if constexpr (std::is_same_v<T, Any>) {
            // Boxing an Any gives the Any itself, so reading it back does too.
            return *this;
        } else {
            using Stored = typename Detail::AnyTraits<T>::Stored;
            using Boxed = Detail::CanonicalType<T>;
            if (!m_holder)
                Detail::RaiseEmptyAnyCast(typeid(T));
            if (const void* value = m_holder->ValuePointer(typeid(Boxed)))
                return Detail::Respell<T>(*static_cast<const Stored*>(value));
            if constexpr (Detail::IsPointer<T>::value) {
                if (const void* value = m_holder->ValuePointer(typeid(Template::Pointer<Interface, 0>)))
                    return T(*static_cast<const Template::Pointer<Interface, 0>*>(value));
            }
            Detail::RaiseAnyCast(m_holder->TypeInfo(), typeid(T));
        }
    }

private:
    Detail::AnyHolderBase* m_holder = nullptr;
    // Keeps the layout that other libraries were built against.
    [[maybe_unused]] void* m_reserved = nullptr;
};

namespace Detail {
// The Any of `value`, in the holder that AnyTraits chooses for T.
template <class T>
Any Box(const T& value)
{
    using Traits = AnyTraits<T>;
    return Any(new AnyHolder<typename Traits::Presented, typename Traits::Stored>(
        Respell<typename Traits::Stored>(value)));
}
} // namespace Detail

QUILON_API Any ToAny(bool value);
QUILON_API Any ToAny(char value);
QUILON_API Any ToAny(unsigned char value);
QUILON_API Any ToAny(short value);
QUILON_API Any ToAny(unsigned short value);
QUILON_API Any ToAny(int value);
QUILON_API Any ToAny(unsigned int value);
QUILON_API Any ToAny(std::int64_t value);
QUILON_API Any ToAny(std::uint64_t value);
QUILON_API Any ToAny(float value);
QUILON_API Any ToAny(double value);
QUILON_API Any ToAny(void* value);
QUILON_API Any ToAny(const std::string& value);
QUILON_API Any ToAny(const std::wstring& value);
QUILON_API Any ToAny(const LIString& value);
QUILON_API Any ToAny(const Type& value);
QUILON_API Any ToAny(const Pointer<Interface, 0>& value);
// An Any boxes as itself: an operator argument of type Any reaches its rules
// as the value it holds.
QUILON_API Any ToAny(const Any& value);

QUILON_API Any ToAny(const std::vector<bool>& value);
QUILON_API Any ToAny(const std::vector<char>& value);
QUILON_API Any ToAny(const std::vector<unsigned char>& value);
QUILON_API Any ToAny(const std::vector<short>& value);
QUILON_API Any ToAny(const std::vector<unsigned short>& value);
QUILON_API Any ToAny(const std::vector<int>& value);
QUILON_API Any ToAny(const std::vector<unsigned int>& value);
QUILON_API Any ToAny(const std::vector<std::int64_t>& value);
QUILON_API Any ToAny(const std::vector<std::uint64_t>& value);
QUILON_API Any ToAny(const std::vector<float>& value);
QUILON_API Any ToAny(const std::vector<double>& value);
QUILON_API Any ToAny(const std::vector<void*>& value);
QUILON_API Any ToAny(const std::vector<std::wstring>& value);
QUILON_API Any ToAny(const std::vector<Pointer<Interface, 0>>& value);

inline Any ToAny(const char* value) { return ToAny(std::string(value)); }
inline Any ToAny(const wchar_t* value) { return ToAny(std::wstring(value)); }

// Every interface reference, as Pointer<Interface,0>.
template <class I, int N>
Any ToAny(const Pointer<I, N>& value)
{
    return ToAny(Pointer<Interface, 0>(value));
}

// Every enumeration, stored as int64 and read back as the enumeration.
template <class E>
    requires std::is_enum_v<E>
Any ToAny(const E& value)
{
    return Detail::Box(value);
}

// Any other type, by its own type.
template <class T>
Any ToAny(const T& value)
{
    return Detail::Box(value);
}

namespace Detail {
template <class T, class S>
bool AnyHolder<T, S>::Equals(const Any& other) const
{
    const void* value = other.Holder() ? other.Holder()->ValuePointer(typeid(T)) : nullptr;
    if (!value)
        return false;
    if constexpr (std::equality_comparable<S>)
        return m_value == *static_cast<const S*>(value);
    else
        return value == &m_value;
}
} // namespace Detail

} // namespace Quilon_::System
