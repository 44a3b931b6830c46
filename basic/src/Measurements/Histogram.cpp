// Histograms, behind Histogram::New.
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::Ref;

namespace {

// The bounds of the ranges are read once, when the histogram is made:
// counting a sample then costs no call on the range objects.
class CHistogram : public System::Template::ObjectImpl<CHistogram, IHistogram> {
public:
    CHistogram(std::vector<std::int64_t> bins, std::vector<Ref<Math::IRangeD>> ranges, bool clamp)
        : m_bins(std::move(bins)), m_ranges(std::move(ranges)), m_clamp(clamp)
    {
        std::int64_t total = 1;
        for (std::size_t d = 0; d < m_bins.size(); ++d) {
            if (m_bins[d] < 1)
                QUILON_RAISE(L"A histogram dimension needs at least one bin, not %1%", m_bins[d]);
            const double minimum = m_ranges[d]->Minimum();
            const double maximum = m_ranges[d]->Maximum();
            if (!(minimum <= maximum))
                QUILON_RAISE(L"The histogram range [%1%, %2%] is empty", minimum, maximum);
            m_minimum.push_back(minimum);
            m_maximum.push_back(maximum);
            total *= m_bins[d];
        }
        m_counts.assign(static_cast<std::size_t>(total), 0);
    }

    std::vector<std::int64_t> BinCounts() override { return m_bins; }
    std::vector<Ref<Math::IRangeD>> Ranges() override { return m_ranges; }
    std::vector<std::int64_t> Counts() override { return m_counts; }
    void SetCounts(const std::vector<std::int64_t>& counts) override
    {
        if (counts.size() != m_counts.size())
            QUILON_RAISE(L"A histogram of %1% bins cannot take %2% counts",
                         static_cast<std::int64_t>(m_counts.size()),
                         static_cast<std::int64_t>(counts.size()));
        m_counts = counts;
    }
    std::int64_t Add(const std::vector<double>& sample) override
    {
        if (sample.size() != m_bins.size())
            QUILON_RAISE(L"A sample of %1% values does not fit a histogram of %2% dimensions",
                         static_cast<std::int64_t>(sample.size()), static_cast<std::int64_t>(m_bins.size()));
        std::int64_t index = 0;
        std::int64_t stride = 1;
        for (std::size_t d = 0; d < m_bins.size(); ++d) {
            const std::int64_t bin = BinOf(d, sample[d]);
            if (bin < 0)
                return -1;
            index += bin * stride;
            stride *= m_bins[d];
        }
        ++m_counts[static_cast<std::size_t>(index)];
        return index;
    }
    std::int64_t Total() override
    {
        return std::accumulate(m_counts.begin(), m_counts.end(), std::int64_t(0));
    }

private:
    // -1 when the value is left out; NaN always is.
    std::int64_t BinOf(std::size_t d, double value) const
    {
        const std::int64_t last = m_bins[d] - 1;
        if (value < m_minimum[d])
            return m_clamp ? 0 : -1;
        if (value >= m_maximum[d])
            return value == m_maximum[d] || m_clamp ? last : -1;
        if (std::isnan(value))
            return -1;
        const double share = (value - m_minimum[d]) / (m_maximum[d] - m_minimum[d]);
        return std::min(last, static_cast<std::int64_t>(share * static_cast<double>(m_bins[d])));
    }

    std::vector<std::int64_t> m_bins;
    std::vector<Ref<Math::IRangeD>> m_ranges;
    bool m_clamp;
    std::vector<double> m_minimum;
    std::vector<double> m_maximum;
    std::vector<std::int64_t> m_counts;
};

Ref<IHistogram> NewHistogram(std::int64_t bins, Ref<Math::IRangeD> range, bool clamp)
{
    return Ref<IHistogram>(new CHistogram({bins}, {std::move(range)}, clamp));
}

Ref<IHistogram> NewHistogramOf(std::int64_t dimensions, const std::vector<std::int64_t>& bins,
                               const std::vector<Ref<Math::IRangeD>>& ranges, bool clamp)
{
    if (dimensions < 1 || bins.size() != static_cast<std::size_t>(dimensions) ||
        ranges.size() != static_cast<std::size_t>(dimensions))
        QUILON_RAISE(
            L"A histogram needs one bin count and one range per dimension (%1% dimensions, %2% bin counts, "
            L"%3% ranges)",
            dimensions, static_cast<std::int64_t>(bins.size()), static_cast<std::int64_t>(ranges.size()));
    return Ref<IHistogram>(new CHistogram(bins, ranges, clamp));
}

void RegisterHistogram()
{
    Histogram::New.Register(L"Histogram", &NewHistogram);
    Histogram::New.Register(L"Histogram", &NewHistogramOf);
}

const System::Template::Initializer<::Library> histogram(&RegisterHistogram, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
