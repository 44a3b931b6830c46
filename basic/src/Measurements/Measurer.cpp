// The collection of measurers, behind MeasurerCollection::New.
#include "Measurements/NamedList.h"

#include "Quilon_/Measurements/MeasurerCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::Pointer;
using System::Ref;

namespace {

// Measurers are tools that need not be cloneable: a clone of the list
// shares them.
class CMeasurerCollection
    : public NamedList<CMeasurerCollection, IMeasurerCollection, IMeasurer, std::wstring, false> {
public:
    CMeasurerCollection() = default;
    CMeasurerCollection(const CMeasurerCollection& other) : Events(), Store<IMeasurer>(), NamedList()
    {
        CopyItems(other);
    }

    static std::wstring KeyOf(IMeasurer& measurer) { return measurer.Name(); }
    [[noreturn]] static void RaiseMissing(const std::wstring& name)
    {
        QUILON_RAISE(L"There is no measurer named '%1%'", name);
    }

    Pointer<IMeasurer, 0> FindFor(Ref<System::Interface> object) override
    {
        for (const auto& measurer : m_items) {
            if (measurer->CanMeasure(object))
                return measurer;
        }
        return nullptr;
    }
    Items AllFor(Ref<System::Interface> object) override
    {
        return Where([&](const Ref<IMeasurer>& measurer) { return measurer->CanMeasure(object); });
    }
    bool CanMeasure(Ref<System::Interface> object) override { return static_cast<bool>(FindFor(object)); }
    System::Any Measure(const std::wstring& name, Ref<System::Interface> object) override
    {
        return ItemByName(name)->Measure(object);
    }
    std::vector<std::pair<std::wstring, System::Any>> MeasureAll(Ref<System::Interface> object) override
    {
        std::vector<std::pair<std::wstring, System::Any>> values;
        for (const auto& measurer : AllFor(object))
            values.emplace_back(measurer->Name(), measurer->Measure(object));
        return values;
    }
};

Ref<IMeasurerCollection> NewMeasurerCollection()
{
    return Ref<IMeasurerCollection>(new CMeasurerCollection);
}

void RegisterMeasurers()
{
    MeasurerCollection::New.Register(L"Measurer collection", &NewMeasurerCollection);
}

const System::Template::Initializer<::Library> measurers(&RegisterMeasurers, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
