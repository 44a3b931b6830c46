// The units known to the process, or any list of units, looked up by name.
//
//   Ref<Measurements::IUnitCollection> units = Measurements::Globals::Units();
//   Ref<Measurements::IUnit> mm = units->ItemByName(L"mm");
//   units->AddMultiple(L"km", LIString(L"Kilometre"), L"m", 1e3);
//   double metres = units->Convert(3.0, L"km", L"m");   // 3000
//
// Names are compared exactly. The lookups take the first unit of a name.
#pragma once

#include "Quilon_/Measurements/Unit.h"
#include "Quilon_/System/Collections/Collection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Measurements {

class QUILON_API IUnitCollection : public System::Collections::Template::ICollection<IUnit> {
    QUILON_INTERFACE(IUnitCollection)
public:
    // The first unit of that name, or null.
    virtual System::Pointer<IUnit, 0> Find(const std::wstring& name) = 0;
    // The first unit of that name; raises when there is none.
    virtual System::Ref<IUnit> ItemByName(const std::wstring& name) = 0;
    // -1 when there is none.
    virtual std::int64_t IndexOfName(const std::wstring& name) = 0;
    virtual bool ContainsName(const std::wstring& name) = 0;
    // Removes the first unit of that name; false when there is none.
    virtual bool RemoveByName(const std::wstring& name) = 0;
    virtual std::vector<std::wstring> Names() = 0;
    virtual std::vector<System::Ref<IUnit>> ToVector() = 0;
    virtual void AddRange(const std::vector<System::Ref<IUnit>>& units) = 0;
    // Replaces the unit of the same name, or adds it.
    virtual void SetUnit(System::Ref<IUnit> unit) = 0;
    // Makes a root unit through Unit::New and adds it.
    virtual System::Ref<IUnit> AddRoot(const std::wstring& name, const System::LIString& displayName) = 0;
    // Makes a unit of `factor` times the unit `baseName` of this collection,
    // and adds it.
    virtual System::Ref<IUnit> AddMultiple(const std::wstring& name, const System::LIString& displayName,
                                           const std::wstring& baseName, double factor) = 0;
    // The units without a base: the dimensions this collection knows.
    virtual std::vector<System::Ref<IUnit>> RootUnits() = 0;
    // The units that convert to and from `unit`, itself included when held.
    virtual std::vector<System::Ref<IUnit>> CompatibleUnits(System::Ref<IUnit> unit) = 0;
    // `value` of unit `from` in unit `to`, both looked up by name.
    virtual double Convert(double value, const std::wstring& from, const std::wstring& to) = 0;
    // The compatible unit in which `value` (of `unit`) reads with the fewest
    // digits while being at least 1 in magnitude; `unit` itself when none
    // does better.
    virtual System::Ref<IUnit> ReadableUnit(double value, System::Ref<IUnit> unit) = 0;
    // The first unit of that display name (compared by text), or null.
    virtual System::Pointer<IUnit, 0> FindByDisplayName(const System::LIString& displayName) = 0;
};

namespace UnitCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IUnitCollection>()>;
extern QUILON_API Factory New;
} // namespace UnitCollection

} // namespace Quilon_::Measurements
