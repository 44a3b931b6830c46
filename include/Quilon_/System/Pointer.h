// The counted handle through which every object of the toolkit is held.
//
// A Pointer<T,N> is exactly one machine pointer to T. Copying takes a
// reference on the object and destroying drops it; the object counts its own
// references (see Object.h). The policy N decides what a null means:
//
//   Pointer<IThing, 0> maybe;          // may hold null; failed casts give null
//   Pointer<IThing, 1> thing = make(); // never assigned null; failed casts throw
//   Pointer<IBox, 2> box = other;      // as 1, and every assignment clones
//
// A conversion between unrelated interfaces is an interface cast: the source
// may delegate it (Interface::FindDelegate), otherwise dynamic_cast decides.
#pragma once

#include "Quilon_/System/Interface.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace Quilon_::System {

class ICloneable;

namespace Detail {
// The failures of the policies, kept out of line so that the inline paths
// stay small. Each raises by the library's raising sequence.
// The location is that of the inline code that detected the failure.
struct SourceLocation {
    const char* function;
    const char* file;
    int line;
};
[[noreturn]] QUILON_API void RaiseNullAssignment(const Type& type, SourceLocation where);
[[noreturn]] QUILON_API void RaiseNullAccess(const Type& type, SourceLocation where);
[[noreturn]] QUILON_API void RaiseInterfaceNotSupported(const Type& type, Interface* source,
                                                        SourceLocation where);
[[noreturn]] QUILON_API void RaiseCloneableNotSupported(const Type& type, Interface* source,
                                                        SourceLocation where);
// Asks `source` for a clone through ICloneable; the result carries one
// reference for the caller, or is null when the source is not cloneable. A
// Clone() that gives null is refused as a null assigned to a reference of
// `type`, the interface that the clone was to be held by.
QUILON_API Interface* CloneThroughICloneable(Interface* source, const Type& type);

template <class T>
Interface* AsInterface(T* value) noexcept
{
    return value ? static_cast<Interface*>(value) : nullptr;
}

// The language's dynamic cast from Interface, remembered per thread.
//
// A dynamic cast between classes of different libraries compares type names
// as strings, and costs more than an operator call. Its outcome depends only
// on the class of the object: Interface is a virtual base of every
// interface, so the distance from the Interface part of an object to its T
// part is fixed by the object's class. That class is told by the table of
// virtual functions the Interface part points to, and libraries are never
// unloaded, so a table's address names one class for the life of the
// process. Each thread keeps, per target interface, the last few outcomes
// by table address: no lock, and a miss costs one dynamic cast as before.
struct CastOutcome {
    const void* table;
    std::ptrdiff_t offset;
};
inline constexpr std::ptrdiff_t castNotSupported = PTRDIFF_MIN;

template <class T>
struct CastOutcomes {
    static constexpr std::size_t size = 4;
    static thread_local inline CastOutcome recent[size];
};

template <class T>
T* CachedDynamicCast(Interface* source)
{
    const void* table;
    std::memcpy(&table, static_cast<const void*>(source), sizeof table);
    CastOutcome& outcome =
        CastOutcomes<T>::recent[(reinterpret_cast<std::uintptr_t>(table) >> 4) % CastOutcomes<T>::size];
    if (outcome.table == table) [[likely]] {
        if (outcome.offset == castNotSupported)
            return nullptr;
        return reinterpret_cast<T*>(reinterpret_cast<char*>(source) + outcome.offset);
    }
    T* result = dynamic_cast<T*>(source);
    outcome.offset =
        result ? reinterpret_cast<char*>(result) - reinterpret_cast<char*>(source) : castNotSupported;
    outcome.table = table;
    return result;
}

// The interface cast without policy checks: FindDelegate first, then the
// dynamic cast. Takes no reference.
template <class T>
T* InterfaceCast(Interface* source)
{
    if (!source)
        return nullptr;
    void* target = nullptr;
    bool exact = false;
    if (!source->FindDelegate(T::GetType(), target, exact))
        return CachedDynamicCast<T>(source);
    if (!exact)
        return target ? CachedDynamicCast<T>(static_cast<Interface*>(target)) : nullptr;
    return static_cast<T*>(target);
}
} // namespace Detail

namespace Template {

template <int N>
struct Policy;

// Nullable reference: conversions never throw.
template <>
struct Policy<0> {
    template <class T>
    static void CheckInterface(T*) noexcept
    {
    }
    static void CheckInterfaceCast(const Type&, Interface*, Interface*) noexcept {}
};

// Reference: null is refused on assignment and after a failed cast.
template <>
struct Policy<1> {
    template <class T>
    static void CheckInterface(T* value)
    {
        if (!value)
            Detail::RaiseNullAssignment(T::GetType(), QUILON_HERE);
    }
    static void CheckInterfaceCast(const Type& type, Interface* source, Interface* result)
    {
        if (result)
            return;
        if (source)
            Detail::RaiseInterfaceNotSupported(type, source, QUILON_HERE);
        Detail::RaiseNullAssignment(type, QUILON_HERE);
    }
};

// Value reference: as 1, and the pointee is cloned on every assignment.
template <>
struct Policy<2> : Policy<1> {
    template <class T>
    static void Assign(T*& target, T* source)
    {
        Interface* clone = Detail::CloneThroughICloneable(static_cast<Interface*>(source), T::GetType());
        if (!clone)
            Detail::RaiseCloneableNotSupported(T::GetType(), source, QUILON_HERE);
        T* result = Detail::InterfaceCast<T>(clone);
        if (result)
            result->AddReference();
        clone->ReleaseReference();
        target = result;
    }
};

template <class T, int N = 1>
class QUILON_API Pointer {
    static_assert(N >= 0 && N <= 2, "Pointer policies are 0, 1 and 2");

public:
    using element_type = T;
    static constexpr int policy = N;

    // A default or moved-from Pointer is null whatever its policy; the
    // policies refuse null only where a value is assigned.
    constexpr Pointer() noexcept : m_pointer(nullptr) {}
    Pointer(std::nullptr_t) : m_pointer(nullptr) { Policy<N>::CheckInterface(static_cast<T*>(nullptr)); }
    // Adopts `value` without cloning it, whatever the policy.
    Pointer(T* value) : m_pointer(value)
    {
        Policy<N>::CheckInterface(value);
        if (value)
            value->AddReference();
    }

    // Policies 0 and 1 share the object, and pass a null on as it is;
    // policy 2 refuses a null and clones.
    Pointer(const Pointer& other) : m_pointer(Acquire(other.m_pointer, N == 2)) {}
    Pointer(Pointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}

    // From another interface or another policy: an upcast or an interface
    // cast, with the check of this policy.
    template <class U, int M>
    Pointer(const Pointer<U, M>& other) : m_pointer(Convert(other.Get()))
    {
    }

    ~Pointer()
    {
        if (m_pointer)
            m_pointer->ReleaseReference();
        m_pointer = nullptr;
    }

    Pointer& operator=(const Pointer& other)
    {
        Replace(Acquire(other.m_pointer, N == 2));
        return *this;
    }
    Pointer& operator=(Pointer&& other)
    {
        if (this != &other)
            Replace(std::exchange(other.m_pointer, nullptr));
        return *this;
    }
    Pointer& operator=(T* value)
    {
        // Policy 2 stores a clone; holding the original meanwhile frees it
        // afterwards when nobody else holds it (a fresh object).
        [[maybe_unused]] Pointer<T, 0> original(N == 2 ? value : nullptr);
        Replace(Acquire(value, true));
        return *this;
    }
    Pointer& operator=(std::nullptr_t)
    {
        Policy<N>::CheckInterface(static_cast<T*>(nullptr));
        Replace(nullptr);
        return *this;
    }
    template <class U, int M>
    Pointer& operator=(const Pointer<U, M>& other)
    {
        if constexpr (!std::is_convertible_v<U*, T*>) {
            // The old value goes before the cast begins.
            Replace(nullptr);
        }
        Replace(Convert(other.Get()));
        return *this;
    }

    T* operator->() const
    {
        if (!m_pointer)
            Detail::RaiseNullAccess(T::GetType(), QUILON_HERE);
        return m_pointer;
    }
    T& operator*() const { return *operator->(); }

    // The raw pointer, without a reference and without a test.
    T* Get() const noexcept { return m_pointer; }
    explicit operator bool() const noexcept { return m_pointer != nullptr; }

    // Identity of the objects, whatever the interfaces they are held by.
    template <class U, int M>
    bool operator==(const Pointer<U, M>& other) const noexcept
    {
        return Detail::AsInterface(m_pointer) == Detail::AsInterface(other.Get());
    }
    bool operator==(std::nullptr_t) const noexcept { return m_pointer == nullptr; }

private:
    // Returns `value` with one reference taken for this pointer: the value
    // itself, or with policy 2 and `clone` a clone of it. With `check`, a
    // null is refused as policies 1 and 2 require.
    static T* Acquire(T* value, bool check)
    {
        if (check)
            Policy<N>::CheckInterface(value);
        if constexpr (N == 2) {
            if (value) {
                T* clone = nullptr;
                Policy<2>::Assign(clone, value);
                return clone;
            }
        }
        if (value)
            value->AddReference();
        return value;
    }

    template <class U>
    static T* Convert(U* source)
    {
        if constexpr (std::is_convertible_v<U*, T*>) {
            // An upcast needs no cast machinery.
            return Acquire(source, true);
        } else {
            Interface* from = Detail::AsInterface(source);
            T* result = Detail::InterfaceCast<T>(from);
            Policy<N>::CheckInterfaceCast(T::GetType(), from, Detail::AsInterface(result));
            return Acquire(result, true);
        }
    }

    // Stores `fresh`, which already carries its reference, and drops the old.
    void Replace(T* fresh)
    {
        T* old = std::exchange(m_pointer, fresh);
        if (old)
            old->ReleaseReference();
    }

    T* m_pointer;
};

} // namespace Template

using Template::Pointer;

// Shorthand of the documentation: Ref<T> is a reference that is never null.
template <class T>
using Ref = Template::Pointer<T, 1>;

} // namespace Quilon_::System
