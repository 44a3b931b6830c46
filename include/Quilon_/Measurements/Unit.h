// Units of measure. A unit has a short name that identifies it ("mm"), a
// display name, and may be a multiple of a base unit, which makes units of
// one dimension convertible into each other:
//
//   Ref<Measurements::IUnit> m = Measurements::Unit::New(L"m", LIString(L"Metre"));
//   Ref<Measurements::IUnit> mm = Measurements::Unit::New(L"mm", LIString(L"Millimetre"));
//   mm->SetBaseUnit(m);
//   mm->SetFactor(1e-3);              // one mm is 0.001 m
//   mm->ConvertTo(2500.0, m);         // 2.5
//
// Units of different roots (metres and seconds) are not compatible and do
// not convert. The concrete class comes from an implementation library.
#pragma once

#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"

#include <string>

namespace Quilon_::Measurements {

class QUILON_API IUnit : public virtual System::Interface {
    QUILON_INTERFACE(IUnit)
public:
    // The identifying short name, as units are looked up by it.
    virtual std::wstring Name() = 0;
    virtual System::LIString DisplayName() = 0;
    virtual void SetDisplayName(const System::LIString& name) = 0;
    // The unit this one is a multiple of; null for a root unit.
    virtual System::Pointer<IUnit, 0> BaseUnit() = 0;
    // Refuses a base that would lead back to this unit.
    virtual void SetBaseUnit(System::Pointer<IUnit, 0> base) = 0;
    // How many base units one of this unit is; 1 for a root unit.
    virtual double Factor() = 0;
    virtual void SetFactor(double factor) = 0;
    // The end of the chain of base units: the unit itself when it has none.
    virtual System::Ref<IUnit> RootUnit() = 0;
    // How many root units one of this unit is.
    virtual double RootFactor() = 0;
    // Whether both units lead to the same root unit (compared by name).
    virtual bool IsCompatible(System::Ref<IUnit> other) = 0;
    // `value` of this unit in `target`; raises for an incompatible unit.
    virtual double ConvertTo(double value, System::Ref<IUnit> target) = 0;
    // The value with the unit's name, as "2.5 mm".
    virtual std::wstring Format(double value) = 0;
};

namespace Unit {
// New(name, displayName): a root unit, of factor 1.
using Factory =
    System::Functions::Template::Factory<System::Ref<IUnit>(const std::wstring&, const System::LIString&)>;
extern QUILON_API Factory New;
} // namespace Unit

} // namespace Quilon_::Measurements
