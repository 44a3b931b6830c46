// Small objects shared by the suites of the object kernel: two unrelated
// interfaces, a concrete class that counts its destructions, one that has
// both interfaces, a cloneable one, and a trace manager that keeps what is
// traced.
//
//   int destructions = 0;
//   auto* thing = new Tests::Kernel::CThing(&destructions);
//   { System::Pointer<Tests::Kernel::IThing> held(thing); }   // destructions == 1
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Diagnostic/TraceManager.h"
#include "Quilon_/System/ObjectImpl.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests::Kernel {

class IThing : public virtual System::Interface {
    QUILON_INTERFACE(IThing)
public:
    virtual int Value() = 0;
};

class IOther : public virtual System::Interface {
    QUILON_INTERFACE(IOther)
public:
    virtual int Other() = 0;
};

// Implements IThing only. Its destructor runs `onDestroy` first, then
// counts itself in `destructions` when given.
class CThing : public System::Template::ObjectImpl<CThing, IThing> {
public:
    explicit CThing(int* destructions = nullptr, int value = 0) : m_destructions(destructions), m_value(value) {}
    ~CThing() override
    {
        if (onDestroy)
            onDestroy(*this);
        if (m_destructions)
            ++*m_destructions;
    }
    int Value() override { return m_value; }

    std::function<void(CThing&)> onDestroy;

private:
    int* m_destructions;
    int m_value;
};

// Implements IThing (1) and IOther (2).
class CBoth : public System::Template::ObjectImpl<CBoth, IThing, IOther> {
public:
    int Value() override { return 1; }
    int Other() override { return 2; }
};

// Implements IThing and System::ICloneable; each clone carries the value
// and the destruction counter.
class CCloneableThing : public System::Template::ObjectImpl<CCloneableThing, IThing, System::ICloneable> {
public:
    explicit CCloneableThing(int value, int* destructions = nullptr) : m_value(value), m_destructions(destructions) {}
    ~CCloneableThing() override
    {
        if (m_destructions)
            ++*m_destructions;
    }
    int Value() override { return m_value; }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new CCloneableThing(m_value, m_destructions));
    }

private:
    int m_value;
    int* m_destructions;
};

// Keeps each traced (message, category).
class CRecordingTrace : public System::Template::ObjectImpl<CRecordingTrace, System::Diagnostic::ITraceManager> {
public:
    void Trace(const std::wstring& message, const std::wstring& category, const std::wstring&, const std::wstring&,
               std::int64_t) override
    {
        traced.emplace_back(message, category);
    }
    void Trace(const std::wstring& message, const std::wstring& category) override
    {
        traced.emplace_back(message, category);
    }
    System::Event<System::Pointer<System::Diagnostic::ITracingEventArgs, 1>>& Traced() override { return m_traced; }

    std::vector<std::pair<std::wstring, std::wstring>> traced;

private:
    System::Event<System::Pointer<System::Diagnostic::ITracingEventArgs, 1>> m_traced{this};
};

} // namespace Quilon_::Tests::Kernel
