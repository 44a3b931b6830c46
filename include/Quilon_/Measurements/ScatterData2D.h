// Series of (x, y) pairs, as a scatter plot shows them.
//
//   Ref<Measurements::IScatterData2D> d = Measurements::ScatterData2D::New({{{1.0, 2.0}, {3.0, 4.0}}});
//   d->SeriesCount();                 // 1
//   d->AddSeries({{0.0, 0.0}});       // 1, its index
#pragma once

#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/GlobalVariable.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Charts {
class IChartStyle;
} // namespace Quilon_::Charts

namespace Quilon_::Measurements {

class QUILON_API IScatterData2D : public virtual System::Interface {
    QUILON_INTERFACE(IScatterData2D)
public:
    using Series = std::vector<std::pair<double, double>>;

    virtual std::int64_t SeriesCount() = 0;
    virtual Series Item(std::int64_t index) = 0;
    // The index of the new series.
    virtual std::int64_t AddSeries(const Series& series) = 0;
};

namespace ScatterData2D {
using Factory = System::Functions::Template::Factory<System::Ref<IScatterData2D>(
    const std::vector<std::vector<std::pair<double, double>>>&)>;
extern QUILON_API Factory New;

QUILON_DECLARE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                       System::Ref<Charts::IChartStyle>);
} // namespace ScatterData2D

} // namespace Quilon_::Measurements
