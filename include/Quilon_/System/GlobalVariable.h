// A setting of the toolkit: one value for the whole process, or one value
// per thread.
//
//   GlobalVariable<bool> clip(false, gvsPerThread);
//   clip.Set(true);      // this thread's value only
//   bool now = clip.Get();
//   clip.Clear();        // every thread back to false
//
// With gvsProcess, Get and Set work on the one value. With gvsPerThread a
// thread's first Get gives it an entry of its own, made from the default:
// a value is copied, an object held by interface is cloned (through
// Collections::ICloneable, deep, if it has it, else System::ICloneable; with
// neither, the Get raises "Class '%1%' does not implement ICloneable").
// Set writes the calling thread's own entry, making it if missing, and
// leaves the default alone: what one thread sets, no other thread sees;
// with gvsPerThreadFromMain, what the main thread sets becomes the default
// as well.
// Clear drops all entries, so that every thread falls back to the default,
// and puts the initial value back, which releases any object held by a
// process-wide setting at shut-down.
//
// Entries are kept by the 32-bit thread id in a map hashed by FNV-1a, under
// the general critical section. The entry of a thread that has ended stays
// until the next Clear.
//
// A process-wide value takes no part in that: it is read and written
// without the general critical section, so that reading a setting never
// waits for a thread that holds the section (a deletion, an event being
// fired). See Detail::ProcessValue for how it stays safe.
//
// The settings trio X(), SetX(value), ClearX() of a Globals namespace is
// written with two macros, one in the header and one in the source:
//
//   // Images/Image.h, in namespace Images::Globals:
//   QUILON_DECLARE_SETTING(ClipImageView, SetClipImageView, ClearClipImageView, bool);
//   // Images/Image.cpp, in the same namespace:
//   QUILON_DEFINE_SETTING(ClipImageView, SetClipImageView, ClearClipImageView, false, System::gvsPerThread)
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Threading/CriticalSection.h"
#include "Quilon_/System/Threading/ThreadId.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace Quilon_::System {

enum GlobalVariableScopeEnumTag : std::int32_t {
    // One value for all threads.
    gvsProcess = 0,
    // One value per thread, made from the default at the thread's first read.
    gvsPerThread = 1,
    // As gvsPerThread, and a write from the main thread also replaces the
    // default, so that threads started later begin with it.
    gvsPerThreadFromMain = 2,
};
using GlobalVariableScopeEnum = GlobalVariableScopeEnumTag;

namespace Detail {

// How a thread's entry is made from the default: the seed is what is read
// under the lock, the entry is made from it outside, since cloning runs
// code of the object.
template <class T>
struct ThreadEntry {
    using Seed = T;
    static Seed SeedOf(const T& value) { return value; }
    static T Make(const Seed& seed) { return seed; }
};

template <class I, int N>
struct ThreadEntry<Template::Pointer<I, N>> {
    // Held with policy 0, so that taking the seed never clones.
    using Seed = Template::Pointer<I, 0>;
    static Seed SeedOf(const Template::Pointer<I, N>& value) { return Seed(value.Get()); }
    static Template::Pointer<I, N> Make(const Seed& seed)
    {
        Seed clone;
        if (!Template::CloneVariable<I>(seed, clone))
            return {};
        // Adopts the clone as it is, whatever the policy.
        return Template::Pointer<I, N>(clone.Get());
    }
};

template <class T, class = void>
struct IsLockFree : std::false_type {
};
template <class T>
struct IsLockFree<T, std::enable_if_t<std::is_trivially_copyable_v<T>>>
    : std::bool_constant<std::atomic<T>::is_always_lock_free> {
};

// The one value of a process-wide setting. A value that fits an atomic
// word (the flags and numbers) is one: a read is a single load, and a
// write a single exchange, never torn and seen whole by every thread;
// acquire and release order it with what the writing thread did before.
template <class T, bool = IsLockFree<T>::value>
class ProcessValue {
public:
    explicit ProcessValue(T value) : m_value(value) {}
    T Load() const { return m_value.load(std::memory_order_acquire); }
    T Exchange(T value) { return m_value.exchange(value, std::memory_order_acq_rel); }

private:
    std::atomic<T> m_value;
};

// Any other value (an object held by interface, a string) cannot be copied
// in one step: a copy taken while another thread replaces the value would
// read it half made, or take a reference on an object that is being
// released. Those copies are made under a lock of the variable's own, held
// for the copy alone: copying a held Pointer of policy 0 or 1 takes a
// reference above 0, which runs no code of the object and takes no other
// lock, and the old value is released after the lock is left. So the lock is always free at
// once unless another thread is copying this very value.
template <class T>
class ProcessValue<T, false> {
public:
    explicit ProcessValue(T value) : m_value(std::move(value)) {}
    T Load() const
    {
        std::lock_guard<std::mutex> lock(m_lock);
        return m_value;
    }
    T Exchange(T value)
    {
        std::lock_guard<std::mutex> lock(m_lock);
        std::swap(m_value, value);
        return value;
    }

private:
    mutable std::mutex m_lock;
    T m_value;
};

} // namespace Detail

// T must be default-constructible and copyable.
template <class T>
class GlobalVariable {
public:
    explicit GlobalVariable(T initial = T(), GlobalVariableScopeEnum scope = gvsProcess)
        : m_initial(initial), m_scope(scope), m_process(scope == gvsProcess ? initial : T()),
          m_default(scope == gvsProcess ? T() : std::move(initial))
    {
    }
    GlobalVariable(const GlobalVariable&) = delete;
    GlobalVariable& operator=(const GlobalVariable&) = delete;

    GlobalVariableScopeEnum Scope() const noexcept { return m_scope; }

    T Get()
    {
        if (m_scope == gvsProcess)
            return m_process.Load();
        return ThreadValue(Threading::CurrentThreadId());
    }

    void Set(T value)
    {
        if (m_scope == gvsProcess) {
            // The old value is released here, after the exchange.
            m_process.Exchange(std::move(value));
            return;
        }
        const std::uint32_t thread = Threading::CurrentThreadId();
        Threading::GeneralCriticalSectionScope lock;
        // Old values leave with `value` and `previousDefault`, after the lock.
        T previousDefault;
        if (m_scope == gvsPerThreadFromMain && thread == Threading::MainThreadId()) {
            previousDefault = value;
            std::swap(m_default, previousDefault);
            ++m_defaultVersion;
        }
        // try_emplace leaves `value` alone when the entry exists.
        auto [entry, made] = m_entries.try_emplace(thread, std::move(value));
        if (!made)
            std::swap(entry->second, value);
    }

    void Clear()
    {
        if (m_scope == gvsProcess) {
            m_process.Exchange(m_initial);
            return;
        }
        Entries dropped;
        T previous = m_initial;
        Threading::GeneralCriticalSectionScope lock;
        dropped.swap(m_entries);
        std::swap(m_default, previous);
        ++m_defaultVersion;
    }

private:
    using Entry = Detail::ThreadEntry<T>;
    using Entries = std::unordered_map<std::uint32_t, T, Threading::ThreadIdHash>;

    // The thread's entry, made if it has none. A change of the default while
    // the entry was being made outside the lock makes it again, from the
    // new default.
    T ThreadValue(std::uint32_t thread)
    {
        for (;;) {
            typename Entry::Seed seed;
            std::uint64_t version;
            {
                Threading::GeneralCriticalSectionScope lock;
                auto found = m_entries.find(thread);
                if (found != m_entries.end())
                    return found->second;
                seed = Entry::SeedOf(m_default);
                version = m_defaultVersion;
            }
            T made = Entry::Make(seed);
            Threading::GeneralCriticalSectionScope lock;
            if (version == m_defaultVersion)
                return m_entries.try_emplace(thread, std::move(made)).first->second;
        }
    }

    const T m_initial;
    const GlobalVariableScopeEnum m_scope;
    // The value of a process-wide variable; unused per thread.
    Detail::ProcessValue<T> m_process;
    // The default of the per-thread entries; unused process-wide.
    T m_default;
    std::uint64_t m_defaultVersion = 0;
    Entries m_entries;
};

} // namespace Quilon_::System

// Declares the exported trio of a setting: Getter() returns the value,
// Setter(value) replaces it, Clearer() resets it (GlobalVariable::Clear).
// The type comes last, so that it may contain commas.
#define QUILON_DECLARE_SETTING(Getter, Setter, Clearer, ...)                                                 \
    QUILON_API __VA_ARGS__ Getter();                                                                         \
    QUILON_API void Setter(__VA_ARGS__ value);                                                               \
    QUILON_API void Clearer()

// Defines the trio declared by QUILON_DECLARE_SETTING, in the same
// namespace, on a GlobalVariable made from the remaining arguments (initial
// value and scope; none for an empty process-wide setting). The variable is
// made at first use and never destroyed, so that settings may be read during
// static construction and while the process exits; the Clear calls of
// shut-down release what it holds.
#define QUILON_DEFINE_SETTING(Getter, Setter, Clearer, ...)                                                  \
    static ::Quilon_::System::GlobalVariable<decltype(Getter())>& Getter##Variable()                         \
    {                                                                                                        \
        static auto* const variable =                                                                        \
            new ::Quilon_::System::GlobalVariable<decltype(Getter())>(__VA_ARGS__);                          \
        return *variable;                                                                                    \
    }                                                                                                        \
    decltype(Getter()) Getter()                                                                              \
    {                                                                                                        \
        return Getter##Variable().Get();                                                                     \
    }                                                                                                        \
    void Setter(decltype(Getter()) value)                                                                    \
    {                                                                                                        \
        Getter##Variable().Set(std::move(value));                                                            \
    }                                                                                                        \
    void Clearer()                                                                                           \
    {                                                                                                        \
        Getter##Variable().Clear();                                                                          \
    }
