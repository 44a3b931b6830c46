// The object the benchmarks hold: a concrete class behind an interface, so
// that each Pointer copy calls AddReference and ReleaseReference through the
// interface's table, as everywhere in the library.
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Bench {

class IValue : public virtual System::Interface {
    QUILON_INTERFACE(IValue)
public:
    virtual int Value() = 0;
};

class CValue : public System::Template::ObjectImpl<CValue, IValue> {
public:
    explicit CValue(int value = 1) : m_value(value) {}
    int Value() override { return m_value; }

private:
    int m_value;
};

} // namespace Quilon_::Bench
