// Units and their collection, behind Unit::New and UnitCollection::New.
#include "Measurements/NamedList.h"

#include "Quilon_/Measurements/UnitCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <cmath>
#include <sstream>

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::LIString;
using System::Pointer;
using System::Ref;

namespace {

class CUnit : public System::Template::ObjectImpl<CUnit, IUnit, System::ICloneable> {
public:
    CUnit(std::wstring name, LIString displayName)
        : m_name(std::move(name)), m_displayName(std::move(displayName))
    {
    }
    // A clone is a new object, sharing the base unit.
    CUnit(const CUnit& other)
        : ObjectImpl(), m_name(other.m_name), m_displayName(other.m_displayName), m_base(other.m_base),
          m_factor(other.m_factor)
    {
    }

    std::wstring Name() override { return m_name; }
    LIString DisplayName() override { return m_displayName; }
    void SetDisplayName(const LIString& name) override { m_displayName = name; }
    Pointer<IUnit, 0> BaseUnit() override { return m_base; }
    void SetBaseUnit(Pointer<IUnit, 0> base) override
    {
        // A chain that came back here would make RootUnit walk for ever.
        for (Pointer<IUnit, 0> step = base; step; step = step->BaseUnit()) {
            if (step.Get() == static_cast<IUnit*>(this))
                QUILON_RAISE(L"Unit '%1%' cannot be based on itself", m_name);
        }
        m_base = std::move(base);
    }
    double Factor() override { return m_factor; }
    void SetFactor(double factor) override
    {
        if (!(factor > 0.0) || !std::isfinite(factor))
            QUILON_RAISE(L"The factor of unit '%1%' must be positive, not %2%", m_name, factor);
        m_factor = factor;
    }
    Ref<IUnit> RootUnit() override
    {
        Ref<IUnit> root(this);
        while (Pointer<IUnit, 0> base = root->BaseUnit())
            root = base;
        return root;
    }
    double RootFactor() override
    {
        double factor = m_factor;
        for (Pointer<IUnit, 0> step = m_base; step; step = step->BaseUnit())
            factor *= step->Factor();
        return factor;
    }
    // Roots compare by name: a thread's clone of a unit still converts with
    // the original.
    bool IsCompatible(Ref<IUnit> other) override { return RootUnit()->Name() == other->RootUnit()->Name(); }
    double ConvertTo(double value, Ref<IUnit> target) override
    {
        if (!IsCompatible(target))
            QUILON_RAISE(L"Unit '%1%' cannot be converted into unit '%2%'", m_name, target->Name());
        return value * RootFactor() / target->RootFactor();
    }
    std::wstring Format(double value) override
    {
        std::wostringstream text;
        text << value << L' ' << m_name;
        return text.str();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CUnit(*this));
    }

private:
    std::wstring m_name;
    LIString m_displayName;
    Pointer<IUnit, 0> m_base;
    double m_factor = 1.0;
};

Ref<IUnit> NewUnit(const std::wstring& name, const LIString& displayName)
{
    return Ref<IUnit>(new CUnit(name, displayName));
}

class CUnitCollection : public NamedList<CUnitCollection, IUnitCollection, IUnit, std::wstring> {
public:
    CUnitCollection() = default;
    CUnitCollection(const CUnitCollection& other) : Events(), Store<IUnit>(), NamedList()
    {
        CopyItems(other);
    }

    static std::wstring KeyOf(IUnit& unit) { return unit.Name(); }
    [[noreturn]] static void RaiseMissing(const std::wstring& name)
    {
        QUILON_RAISE(L"There is no unit named '%1%'", name);
    }

    void SetUnit(Ref<IUnit> unit) override
    {
        const std::int64_t index = IndexOfName(unit->Name());
        if (index < 0)
            TypedView::Add(unit);
        else
            TypedView::SetItem(index, unit);
    }
    Ref<IUnit> AddRoot(const std::wstring& name, const LIString& displayName) override
    {
        Ref<IUnit> unit = Unit::New(name, displayName);
        TypedView::Add(unit);
        return unit;
    }
    Ref<IUnit> AddMultiple(const std::wstring& name, const LIString& displayName,
                           const std::wstring& baseName, double factor) override
    {
        Ref<IUnit> base = ItemByName(baseName);
        Ref<IUnit> unit = Unit::New(name, displayName);
        unit->SetBaseUnit(base);
        unit->SetFactor(factor);
        TypedView::Add(unit);
        return unit;
    }
    std::vector<Ref<IUnit>> RootUnits() override
    {
        return Where([](const Ref<IUnit>& unit) { return !unit->BaseUnit(); });
    }
    std::vector<Ref<IUnit>> CompatibleUnits(Ref<IUnit> unit) override
    {
        return Where([&](const Ref<IUnit>& candidate) { return candidate->IsCompatible(unit); });
    }
    double Convert(double value, const std::wstring& from, const std::wstring& to) override
    {
        return ItemByName(from)->ConvertTo(value, ItemByName(to));
    }
    // The unit whose reading has the smallest magnitude that is still at
    // least 1: 1500 mm reads as 1.5 m, 0.002 m as 2 mm.
    Ref<IUnit> ReadableUnit(double value, Ref<IUnit> unit) override
    {
        Ref<IUnit> best = unit;
        double bestReading = std::fabs(value);
        for (const Ref<IUnit>& candidate : CompatibleUnits(unit)) {
            const double reading = std::fabs(unit->ConvertTo(value, candidate));
            const bool bestTooSmall = bestReading < 1.0;
            if ((reading >= 1.0 && (bestTooSmall || reading < bestReading)) ||
                (bestTooSmall && reading > bestReading)) {
                best = candidate;
                bestReading = reading;
            }
        }
        return best;
    }
    Pointer<IUnit, 0> FindByDisplayName(const LIString& displayName) override
    {
        for (const auto& unit : m_items) {
            if (unit->DisplayName().Value() == displayName.Value())
                return unit;
        }
        return nullptr;
    }
};

Ref<IUnitCollection> NewUnitCollection()
{
    return Ref<IUnitCollection>(new CUnitCollection);
}

void RegisterUnits()
{
    Unit::New.Register(L"Unit", &NewUnit);
    UnitCollection::New.Register(L"Unit collection", &NewUnitCollection);
}

const System::Template::Initializer<::Library> units(&RegisterUnits, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
