// The measuring tools of the process, looked up by name or by what they can
// measure:
//
//   Ref<Measurements::IMeasurerCollection> tools = Measurements::Globals::Measurers();
//   if (Pointer<Measurements::IMeasurer, 0> m = tools->FindFor(shape))
//       System::Any value = m->Measure(shape);
#pragma once

#include "Quilon_/Measurements/Measurer.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Measurements {

class QUILON_API IMeasurerCollection : public System::Collections::Template::ICollection<IMeasurer> {
    QUILON_INTERFACE(IMeasurerCollection)
public:
    // The first measurer of that name, or null.
    virtual System::Pointer<IMeasurer, 0> Find(const std::wstring& name) = 0;
    // The first measurer of that name; raises when there is none.
    virtual System::Ref<IMeasurer> ItemByName(const std::wstring& name) = 0;
    virtual std::int64_t IndexOfName(const std::wstring& name) = 0;
    virtual bool ContainsName(const std::wstring& name) = 0;
    virtual bool RemoveByName(const std::wstring& name) = 0;
    virtual std::vector<std::wstring> Names() = 0;
    virtual std::vector<System::Ref<IMeasurer>> ToVector() = 0;
    virtual void AddRange(const std::vector<System::Ref<IMeasurer>>& measurers) = 0;
    // The first measurer that can measure `object`, or null.
    virtual System::Pointer<IMeasurer, 0> FindFor(System::Ref<System::Interface> object) = 0;
    // Every measurer that can measure `object`.
    virtual std::vector<System::Ref<IMeasurer>> AllFor(System::Ref<System::Interface> object) = 0;
    virtual bool CanMeasure(System::Ref<System::Interface> object) = 0;
    // The value of the measurer `name`; raises when there is none.
    virtual System::Any Measure(const std::wstring& name, System::Ref<System::Interface> object) = 0;
    // The name and value of every measurer that can measure `object`.
    virtual std::vector<std::pair<std::wstring, System::Any>>
    MeasureAll(System::Ref<System::Interface> object) = 0;
};

namespace MeasurerCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IMeasurerCollection>()>;
extern QUILON_API Factory New;
} // namespace MeasurerCollection

} // namespace Quilon_::Measurements
