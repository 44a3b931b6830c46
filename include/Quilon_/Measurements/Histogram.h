// Bin counts of samples over one or more dimensions, as measuring
// operators return them.
//
//   Ref<Measurements::IHistogram> h =
//       Measurements::Histogram::New(256, Math::RangeD::New(0.0, 256.0), false);
//   h->Add({12.0});                   // the flat index of the bin, 12
//   h->Counts()[12];                  // 1
//
// Bin i of a dimension covers [minimum + i w, minimum + (i + 1) w), w being
// the range's width over the bin count; the last bin also takes the
// maximum. Counts run over the first dimension fastest. The flag of New
// says whether samples outside the ranges are clamped into the first or
// last bin (true) or left out (false).
#pragma once

#include "Quilon_/Math/Range.h"
#include "Quilon_/System/GlobalVariable.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Charts {
class IChartStyle;
} // namespace Quilon_::Charts

namespace Quilon_::Measurements {

class QUILON_API IHistogram : public virtual System::Interface {
    QUILON_INTERFACE(IHistogram)
public:
    // The bin count of each dimension.
    virtual std::vector<std::int64_t> BinCounts() = 0;
    virtual std::vector<System::Ref<Math::IRangeD>> Ranges() = 0;
    virtual std::vector<std::int64_t> Counts() = 0;
    // `counts` must hold one count per bin.
    virtual void SetCounts(const std::vector<std::int64_t>& counts) = 0;
    // Counts one sample, one value per dimension; the flat index of its
    // bin, or -1 when it was left out.
    virtual std::int64_t Add(const std::vector<double>& sample) = 0;
    // The sum of the counts.
    virtual std::int64_t Total() = 0;
};

namespace Histogram {
// New(bins, range, clamp): one dimension. New(dimensions, bins, ranges,
// clamp): `dimensions` must be the size of `bins` and of `ranges`.
using Factory = System::Functions::Template::Factory<
    System::Ref<IHistogram>(std::int64_t, System::Ref<Math::IRangeD>, bool),
    System::Ref<IHistogram>(std::int64_t, const std::vector<std::int64_t>&,
                            const std::vector<System::Ref<Math::IRangeD>>&, bool)>;
extern QUILON_API Factory New;

// How charts draw histograms unless told otherwise.
QUILON_DECLARE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                       System::Ref<Charts::IChartStyle>);
} // namespace Histogram

} // namespace Quilon_::Measurements
