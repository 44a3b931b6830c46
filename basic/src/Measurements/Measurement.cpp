// Measurements, their collection and the dictionary of collections by type,
// behind Measurement::New, MeasurementCollection::New and
// MeasurementsDictionary::New.
#include "Measurements/NamedList.h"

#include "Quilon_/Measurements/MeasurementsDictionary.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <unordered_map>

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::LIString;
using System::Pointer;
using System::Ref;
using System::Type;

namespace {

class CMeasurement : public System::Template::ObjectImpl<CMeasurement, IMeasurement, IMeasurementInternal,
                                                         System::ICloneable> {
public:
    CMeasurement(LIString name, Ref<System::Interface> source, Type appliesTo)
        : m_name(std::move(name)), m_source(std::move(source)), m_appliesTo(std::move(appliesTo))
    {
    }
    // A clone shares the source and the unit.
    CMeasurement(const CMeasurement& other)
        : ObjectImpl(), m_name(other.m_name), m_source(other.m_source), m_appliesTo(other.m_appliesTo),
          m_unit(other.m_unit), m_description(other.m_description)
    {
    }

    LIString Name() override { return m_name; }
    Ref<System::Interface> Source() override { return m_source; }
    Type AppliesTo() override { return m_appliesTo; }
    Pointer<IUnit, 0> Unit() override { return m_unit; }
    void SetUnit(Pointer<IUnit, 0> unit) override { m_unit = std::move(unit); }
    LIString Description() override { return m_description; }
    void SetDescription(const LIString& description) override { m_description = description; }

    void SetName(const LIString& name) override { m_name = name; }
    void SetSource(Ref<System::Interface> source) override { m_source = std::move(source); }
    void SetAppliesTo(const Type& type) override { m_appliesTo = type; }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CMeasurement(*this));
    }

private:
    LIString m_name;
    Ref<System::Interface> m_source;
    Type m_appliesTo;
    Pointer<IUnit, 0> m_unit;
    LIString m_description;
};

Ref<IMeasurement> NewMeasurement(const LIString& name, Ref<System::Interface> source, const Type& appliesTo)
{
    return Ref<IMeasurement>(new CMeasurement(name, std::move(source), appliesTo));
}

class CMeasurementCollection
    : public NamedList<CMeasurementCollection, IMeasurementCollection, IMeasurement, LIString> {
public:
    CMeasurementCollection() = default;
    CMeasurementCollection(const CMeasurementCollection& other)
        : Events(), Store<IMeasurement>(), NamedList(), m_selected(other.m_selected)
    {
        CopyItems(other);
    }

    static LIString KeyOf(IMeasurement& measurement) { return measurement.Name(); }
    [[noreturn]] static void RaiseMissing(const LIString& name)
    {
        QUILON_RAISE(L"There is no measurement named '%1%'", name);
    }

    Ref<IMeasurement> AddMeasurement(const LIString& name, Ref<System::Interface> source,
                                     const Type& appliesTo) override
    {
        Ref<IMeasurement> measurement = Measurement::New(name, std::move(source), appliesTo);
        TypedView::Add(measurement);
        return measurement;
    }
    Items ApplicableTo(Ref<System::Interface> object) override
    {
        return Where([&](const Ref<IMeasurement>& m) { return m->AppliesTo().IsImplementedBy(object); });
    }
    Items BySource(Ref<System::Interface> source) override
    {
        return Where([&](const Ref<IMeasurement>& m) { return m->Source().Get() == source.Get(); });
    }
    std::vector<LIString> SelectedNames() override { return m_selected; }
    void SetSelectedNames(const std::vector<LIString>& names) override { m_selected = names; }
    Items Selected() override
    {
        return Where([&](const Ref<IMeasurement>& m) {
            return std::any_of(m_selected.begin(), m_selected.end(),
                               [&](const LIString& name) { return name.Value() == m->Name().Value(); });
        });
    }

private:
    std::vector<LIString> m_selected;
};

Ref<IMeasurementCollection> NewMeasurementCollection()
{
    return Ref<IMeasurementCollection>(new CMeasurementCollection);
}

struct TypeNameHash {
    std::size_t operator()(const Type& type) const { return std::hash<std::wstring>()(type.Name()); }
};
using CollectionMap = std::unordered_map<Type, Ref<IMeasurementCollection>, TypeNameHash>;

class CMeasurementsDictionary
    : public System::Template::ObjectImpl<
          CMeasurementsDictionary,
          System::Collections::Template::IValueDictionaryImpl<IMeasurementsDictionary, CollectionMap>,
          System::ICloneable> {
    using Measurements = std::vector<Ref<IMeasurement>>;

public:
    CMeasurementsDictionary() = default;
    // A deep copy: each collection is cloned with its measurements.
    CMeasurementsDictionary(const CMeasurementsDictionary& other) : ObjectImpl()
    {
        for (const auto& [type, collection] : other.m_map) {
            Pointer<System::Collections::ICloneable, 0> cloneable(collection);
            if (cloneable)
                m_map.emplace(type, Ref<IMeasurementCollection>(cloneable->Clone()));
            else
                m_map.emplace(type, collection);
        }
    }

    Pointer<IMeasurementCollection, 0> Find(const Type& type) override
    {
        auto found = m_map.find(type);
        if (found == m_map.end())
            return nullptr;
        return found->second;
    }
    Ref<IMeasurementCollection> Collection(const Type& type) override
    {
        if (Pointer<IMeasurementCollection, 0> found = Find(type))
            return found;
        Ref<IMeasurementCollection> made = MeasurementCollection::New();
        Add(type, made);
        return made;
    }
    void AddMeasurement(Ref<IMeasurement> measurement) override
    {
        Collection(measurement->AppliesTo())->Add(measurement);
    }
    bool RemoveMeasurement(Ref<IMeasurement> measurement) override
    {
        Pointer<IMeasurementCollection, 0> collection = Find(measurement->AppliesTo());
        return collection && collection->Remove(measurement);
    }
    Pointer<IMeasurement, 0> FindMeasurement(const Type& type, const LIString& name) override
    {
        Pointer<IMeasurementCollection, 0> collection = Find(type);
        return collection ? collection->Find(name) : Pointer<IMeasurement, 0>();
    }
    bool ContainsMeasurement(const Type& type, const LIString& name) override
    {
        return static_cast<bool>(FindMeasurement(type, name));
    }
    Measurements ApplicableTo(Ref<System::Interface> object) override
    {
        Measurements found;
        for (const Type& type : TypesOf(object)) {
            for (const auto& measurement : m_map.at(type)->ToVector())
                found.push_back(measurement);
        }
        return found;
    }
    std::vector<Type> TypesOf(Ref<System::Interface> object) override
    {
        std::vector<Type> types;
        for (const Type& type : Keys()) {
            if (type.IsImplementedBy(object))
                types.push_back(type);
        }
        return types;
    }
    std::int64_t MeasurementCount() override
    {
        std::int64_t count = 0;
        for (const auto& entry : m_map)
            count += entry.second->Count();
        return count;
    }
    Measurements AllMeasurements() override
    {
        return Where([](const Ref<IMeasurement>&) { return true; });
    }
    std::vector<LIString> Names(const Type& type) override
    {
        Pointer<IMeasurementCollection, 0> collection = Find(type);
        return collection ? collection->Names() : std::vector<LIString>();
    }
    Measurements FindByName(const LIString& name) override
    {
        return Where([&](const Ref<IMeasurement>& m) { return m->Name().Value() == name.Value(); });
    }
    Measurements BySource(Ref<System::Interface> source) override
    {
        return Where([&](const Ref<IMeasurement>& m) { return m->Source().Get() == source.Get(); });
    }
    void ClearMeasurements() override
    {
        for (const auto& entry : m_map)
            entry.second->Clear();
    }
    void Merge(Ref<IMeasurementsDictionary> other) override
    {
        for (const auto& measurement : other->AllMeasurements()) {
            if (!ContainsMeasurement(measurement->AppliesTo(), measurement->Name()))
                AddMeasurement(measurement);
        }
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CMeasurementsDictionary(*this));
    }

private:
    // The measurements of every collection that pass `keep`, collection by
    // collection in the order of Keys().
    template <class Predicate>
    Measurements Where(Predicate keep)
    {
        Measurements kept;
        for (const Type& type : Keys()) {
            for (const auto& measurement : m_map.at(type)->ToVector()) {
                if (keep(measurement))
                    kept.push_back(measurement);
            }
        }
        return kept;
    }
};

Ref<IMeasurementsDictionary> NewMeasurementsDictionary()
{
    return Ref<IMeasurementsDictionary>(new CMeasurementsDictionary);
}

void RegisterMeasurements()
{
    Measurement::New.Register(L"Measurement", &NewMeasurement);
    MeasurementCollection::New.Register(L"Measurement collection", &NewMeasurementCollection);
    MeasurementsDictionary::New.Register(L"Measurements dictionary", &NewMeasurementsDictionary);
}

const System::Template::Initializer<::Library> measurements(&RegisterMeasurements, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
