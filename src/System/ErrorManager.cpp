#include "Quilon_/System/ErrorManager.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/CriticalSection.h"
#include "Quilon_/System/Threading/Lockable.h"
#include "Quilon_/System/Threading/ScopedLock.h"
#include "Quilon_/System/Threading/ThreadId.h"
#include "Quilon_/System/Type.h"

#include <unordered_map>

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IWarningEventArgs, L"Quilon_::System::IWarningEventArgs", IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(IErrorManager, L"Quilon_::System::IErrorManager", Interface)

namespace {

class CWarningEventArgs : public Template::ObjectImpl<CWarningEventArgs, IWarningEventArgs> {
public:
    CWarningEventArgs(Pointer<IException, 1> warning, WarningLevelEnum level, Any tag)
        : m_warning(std::move(warning)), m_level(level), m_tag(std::move(tag))
    {
    }
    Pointer<IException, 1> Warning() override { return m_warning; }
    WarningLevelEnum Level() override { return m_level; }
    Any Tag() override { return m_tag; }

private:
    Pointer<IException, 1> m_warning;
    WarningLevelEnum m_level;
    Any m_tag;
};

// One entry per thread, in a process-wide map under the general critical
// section; shared by every error manager, as the threads are.
template <class Value>
class PerThreadStore {
public:
    Value Get()
    {
        Threading::GeneralCriticalSectionScope guard;
        auto found = m_values.find(Threading::CurrentThreadId());
        return found == m_values.end() ? Value() : found->second;
    }
    Value Take()
    {
        Threading::GeneralCriticalSectionScope guard;
        auto found = m_values.find(Threading::CurrentThreadId());
        if (found == m_values.end())
            return Value();
        Value value = std::move(found->second);
        found->second = Value();
        return value;
    }
    void Set(Value value)
    {
        Value old;
        {
            Threading::GeneralCriticalSectionScope guard;
            Value& slot = m_values[Threading::CurrentThreadId()];
            old = std::move(slot);
            slot = std::move(value);
        }
        // `old` is released here, outside the lock.
    }

private:
    std::unordered_map<std::uint32_t, Value, Threading::ThreadIdHash> m_values;
};

// Never destroyed: threads may report failures while the process exits.
PerThreadStore<Pointer<IException, 0>>& LastErrors()
{
    static auto* const store = new PerThreadStore<Pointer<IException, 0>>;
    return *store;
}

PerThreadStore<Pointer<IWarningEventArgs, 0>>& LastWarnings()
{
    static auto* const store = new PerThreadStore<Pointer<IWarningEventArgs, 0>>;
    return *store;
}

class CErrorManager : public Template::ObjectImpl<CErrorManager, IErrorManager, Threading::ILockable> {
public:
    void Warn(Pointer<IException, 1> warning, WarningLevelEnum level, Any tag) override
    {
        Notify(warning, [&] { return WarningEventArgs::New(warning, level, tag); });
    }
    void Warn(Pointer<IException, 1> warning, WarningLevelEnum level) override
    {
        Notify(warning, [&] { return WarningEventArgs::New(warning, level); });
    }
    Pointer<IException, 0> TakeLastError() override { return LastErrors().Take(); }
    void SetLastError(Pointer<IException, 0> error) override { LastErrors().Set(std::move(error)); }
    Pointer<IWarningEventArgs, 0> LastWarning() override { return LastWarnings().Get(); }
    Event<Pointer<IWarningEventArgs, 1>>& WarningRaised() override { return m_warningRaised; }
    Threading::MutexBase& GetMutex() override { return m_mutex; }

private:
    // Listeners run with the manager's lock held; a warning raised while
    // warning is dropped, so a listener that warns causes no recursion.
    template <class MakeArgs>
    void Notify(const Pointer<IException, 1>& warning, MakeArgs makeArgs)
    {
        Threading::ScopedLock lock(m_mutex, __FILE__, __LINE__);
        if (m_inWarning)
            return;
        bool wasInWarning = m_inWarning;
        m_inWarning = true;
        try {
            Template::Policy<1>::CheckInterface(warning.Get());
            Pointer<IWarningEventArgs, 1> args = makeArgs();
            LastWarnings().Set(args);
            m_warningRaised.Fire(args);
        } catch (...) {
            m_inWarning = wasInWarning;
            throw;
        }
        m_inWarning = wasInWarning;
    }

    Threading::Mutex m_mutex;
    bool m_inWarning = false;
    Event<Pointer<IWarningEventArgs, 1>> m_warningRaised{this};
};

Pointer<IErrorManager, 1> NewErrorManager()
{
    return Pointer<IErrorManager, 1>(new CErrorManager);
}

} // namespace

Pointer<IWarningEventArgs, 1> WarningEventArgs::New(Pointer<IException, 1> warning, WarningLevelEnum level, Any tag)
{
    return Pointer<IWarningEventArgs, 1>(new CWarningEventArgs(std::move(warning), level, std::move(tag)));
}

Pointer<IWarningEventArgs, 1> WarningEventArgs::New(Pointer<IException, 1> warning, WarningLevelEnum level)
{
    return Pointer<IWarningEventArgs, 1>(new CWarningEventArgs(std::move(warning), level, Any()));
}

// Constructed before the other static objects of the library, since any
// failure during static construction reports through it.
__attribute__((init_priority(101)))
Functions::Template::Function<Pointer<IErrorManager, 1> (*)()> ErrorManager::New(&NewErrorManager);

} // namespace Quilon_::System
