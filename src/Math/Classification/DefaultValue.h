// The default values of the learning classes: process-wide variables read
// by the concrete classes of an implementation library when they are made
// without explicit settings. Several classes share the same limits (ratios,
// learning rates, epochs), so a limit is a row of data and one setter
// checks them all:
//
//   constexpr Detail::Limit momentum{0, Detail::Bound::Closed, 1, Detail::Bound::Closed,
//                                    L"Invalid momentum : %1%."};
//   double momentumValue = 0;
//   void SetMomentum(double value) { Detail::SetWithin(momentumValue, value, momentum, QUILON_HERE); }
//
// Object-valued defaults are empty until a library stores them, and are
// released together at library end:
//
//   Detail::DefaultObject<IDeviationEvaluationFunction> function;
//   function.Get();        // raises the Pointer message while empty
//   function.Set(value);
//
// The variables are read and written without a lock: they are set at
// start-up, before the threads that read them begin.
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Raise.h"

#include <cwchar>
#include <functional>
#include <limits>

namespace Quilon_::Math::Classification::Detail {

enum class Bound {
    Closed, // the bound itself is accepted
    Open,   // the bound itself is refused
};

// The accepted values of a default, and the message of a refusal, which
// prints the value as %1%.
struct Limit {
    double low;
    Bound lowBound;
    double high;
    Bound highBound;
    const wchar_t* message;

    bool Accepts(double value) const
    {
        const bool aboveLow = lowBound == Bound::Closed ? value >= low : value > low;
        const bool belowHigh = highBound == Bound::Closed ? value <= high : value < high;
        return aboveLow && belowHigh;
    }
};

inline constexpr double unbounded = std::numeric_limits<double>::infinity();

// The rows shared by several classes.
inline constexpr Limit validationRatioLimit{0, Bound::Closed, 1, Bound::Closed,
                                            L"Invalid validation ratio : %1%."};
inline constexpr Limit learningRateLimit{0, Bound::Open, 1, Bound::Closed, L"Invalid learning rate : %1%."};
inline constexpr Limit momentumLimit{0, Bound::Closed, 1, Bound::Closed, L"Invalid momentum : %1%."};
inline constexpr Limit epochLimit{0, Bound::Closed, unbounded, Bound::Closed, L"Invalid epoch : %1%."};
inline constexpr Limit blockSizeLimit{1, Bound::Closed, unbounded, Bound::Closed,
                                      L"Invalid block size value : %1%."};

// Stores `value` when the limit accepts it (compared as a double); reports
// the limit's message, with the value as %1% where it has one, from `where`
// and stores nothing otherwise.
template <class T>
void SetWithin(T& slot, T value, const Limit& limit, const System::Detail::SourceLocation& where)
{
    if (!limit.Accepts(static_cast<double>(value))) {
        // The formatter refuses an argument that its message does not use.
        if (std::wcsstr(limit.message, L"%1%"))
            System::Detail::Raise(where.function, where.file, where.line, limit.message, value);
        System::Detail::Raise(where.function, where.file, where.line, limit.message);
    }
    slot = value;
}

// Every object default registers how it is released; the core releases
// them all when the library stops, while the libraries that made the
// objects are still loaded.
void AddDefaultObjectRelease(std::function<void()> release);
void ReleaseDefaultObjects();

// An object-valued default: empty until set.
template <class T>
class DefaultObject {
public:
    DefaultObject()
    {
        AddDefaultObjectRelease([this] { m_value = nullptr; });
    }
    DefaultObject(const DefaultObject&) = delete;
    DefaultObject& operator=(const DefaultObject&) = delete;

    // The object; while empty, raises "Pointer <%1%> : attempt to assign 0
    // to a reference".
    System::Pointer<T, 1> Get() const { return System::Pointer<T, 1>(m_value); }
    // The object or an empty pointer, without report.
    const System::Pointer<T, 0>& Find() const { return m_value; }
    // Releases the object held before.
    void Set(const System::Pointer<T, 0>& value) { m_value = value; }

private:
    System::Pointer<T, 0> m_value;
};

} // namespace Quilon_::Math::Classification::Detail

// The getter and setter of a plain default, in a DefaultValues namespace.
#define QUILON_DEFINE_DEFAULT_VALUE(Getter, Setter, T, initial)                                              \
    namespace {                                                                                              \
    T Getter##Value = initial;                                                                               \
    }                                                                                                        \
    T Getter()                                                                                               \
    {                                                                                                        \
        return Getter##Value;                                                                                \
    }                                                                                                        \
    void Setter(T value)                                                                                     \
    {                                                                                                        \
        Getter##Value = value;                                                                               \
    }

// The same with a limit (a Detail::Limit): a refused value is reported
// from the setter and not stored.
#define QUILON_DEFINE_LIMITED_DEFAULT_VALUE(Getter, Setter, T, initial, limit)                               \
    namespace {                                                                                              \
    T Getter##Value = initial;                                                                               \
    }                                                                                                        \
    T Getter()                                                                                               \
    {                                                                                                        \
        return Getter##Value;                                                                                \
    }                                                                                                        \
    void Setter(T value)                                                                                     \
    {                                                                                                        \
        ::Quilon_::Math::Classification::Detail::SetWithin(Getter##Value, value, limit, QUILON_HERE);        \
    }

// An object default that must be set before it is read: the getter
// returns a reference and raises while the default is empty.
#define QUILON_DEFINE_DEFAULT_OBJECT(Getter, Setter, I)                                                      \
    namespace {                                                                                              \
    ::Quilon_::Math::Classification::Detail::DefaultObject<I> Getter##Value;                                 \
    }                                                                                                        \
    ::Quilon_::System::Ref<I> Getter()                                                                       \
    {                                                                                                        \
        return Getter##Value.Get();                                                                          \
    }                                                                                                        \
    void Setter(::Quilon_::System::Ref<I> value)                                                             \
    {                                                                                                        \
        Getter##Value.Set(value);                                                                            \
    }

// An object default that may stay empty.
#define QUILON_DEFINE_OPTIONAL_DEFAULT_OBJECT(Getter, Setter, I)                                             \
    namespace {                                                                                              \
    ::Quilon_::Math::Classification::Detail::DefaultObject<I> Getter##Value;                                 \
    }                                                                                                        \
    ::Quilon_::System::Pointer<I, 0> Getter()                                                                \
    {                                                                                                        \
        return Getter##Value.Find();                                                                         \
    }                                                                                                        \
    void Setter(::Quilon_::System::Pointer<I, 0> value)                                                      \
    {                                                                                                        \
        Getter##Value.Set(value);                                                                            \
    }
