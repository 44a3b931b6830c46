// Small objects for the suites of the object kernel: two unrelated
// interfaces, a concrete class that counts its destructions, and a cloneable
// one that counts its clones.
//
//   int destructions = 0;
//   auto* thing = new Tests::Kernel::CThing(&destructions);
//   { System::Pointer<Tests::Kernel::IThing> held(thing); }   // destructions == 1
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

#include <cstdint>
#include <functional>

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

// Implements IThing and System::ICloneable; each clone carries the value
// and the counters, and counts itself in `clones`.
class CCloneableThing : public System::Template::ObjectImpl<CCloneableThing, IThing, System::ICloneable> {
public:
    CCloneableThing(int value, int* clones = nullptr, int* destructions = nullptr)
        : m_value(value), m_clones(clones), m_destructions(destructions)
    {
    }
    ~CCloneableThing() override
    {
        if (m_destructions)
            ++*m_destructions;
    }
    int Value() override { return m_value; }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        if (m_clones)
            ++*m_clones;
        return System::Pointer<System::ICloneable, 1>(new CCloneableThing(m_value, m_clones, m_destructions));
    }

private:
    int m_value;
    int* m_clones;
    int* m_destructions;
};

} // namespace Quilon_::Tests::Kernel
