// A list of resolutions, such as the levels of a multi-resolution image,
// from the finest to the coarsest:
//
//   Ref<Measurements::IResolutionCollection> levels = Measurements::ResolutionCollection::New();
//   levels->Add(base);
//   levels->AddScaled(base, 2.0);
//   levels->IndexOfNearest(Geometry::aX, 1.7);   // 1
#pragma once

#include "Quilon_/Measurements/Resolution.h"
#include "Quilon_/System/Collections/Collection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Measurements {

class QUILON_API IResolutionCollection : public System::Collections::Template::ICollection<IResolution> {
    QUILON_INTERFACE(IResolutionCollection)
public:
    virtual std::vector<System::Ref<IResolution>> ToVector() = 0;
    // The first resolution that has all of `axes`, or null.
    virtual System::Pointer<IResolution, 0> Find(Geometry::Axes axes) = 0;
    // The resolution of the smallest value along `axis`, among those that
    // have the axis; null if none has it.
    virtual System::Pointer<IResolution, 0> Finest(Geometry::AxisEnum axis) = 0;
    // The same, of the greatest value.
    virtual System::Pointer<IResolution, 0> Coarsest(Geometry::AxisEnum axis) = 0;
    // The position of the resolution whose value along `axis` is closest to
    // `value`; -1 if none has the axis.
    virtual std::int64_t IndexOfNearest(Geometry::AxisEnum axis, double value) = 0;
    // Adds source->Scaled(factor) and returns it.
    virtual System::Ref<IResolution> AddScaled(System::Ref<IResolution> source, double factor) = 0;
    // Orders the resolutions by their value along `axis`, ascending; those
    // without the axis go last, in their order.
    virtual void SortByValue(Geometry::AxisEnum axis) = 0;
    // The value along `axis` of each resolution that has it.
    virtual std::vector<double> Values(Geometry::AxisEnum axis) = 0;
    // Whether every resolution is isotropic; true when empty.
    virtual bool AllIsotropic() = 0;
    // The axes that every resolution has; none when empty.
    virtual Geometry::Axes CommonAxes() = 0;
    // Sets the unit of `axis` in every resolution that has it.
    virtual void SetUnit(Geometry::AxisEnum axis, System::Pointer<IUnit, 0> unit) = 0;
    // Multiplies every value of every resolution by `factor`, in place.
    virtual void Scale(double factor) = 0;
};

namespace ResolutionCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IResolutionCollection>()>;
extern QUILON_API Factory New;
} // namespace ResolutionCollection

} // namespace Quilon_::Measurements
