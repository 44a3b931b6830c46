// The reference Statistics of ObjectSets::Measurements: the grey values of
// an image under each object's shape (first band and time step; pixels of
// a shape outside the image do not count).
//
// Mean, Minimum, Maximum, Sum; StandardDeviation of the population (divided
// by n); Median and Percentile by linear interpolation between the sorted
// samples at rank p / 100 * (n - 1), p being 50 for the median and the
// first number argument, in percent and clamped to [0, 100], for
// Percentile. The second number argument is not used. Results go into
// double attributes ("Statistics.Mean", ...): sums of large objects need
// more than a float. An object with no sample under it gets no value.
#include "ObjectSets/Operators/Measurements.h"

#include "Images/Operators/OperatorSupport.h"

#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

namespace QOS = Quilon_::ObjectSets;
namespace QM = Quilon_::ObjectSets::Measurements;
namespace ImgOps = Images::Operators;

struct StatisticInfo {
    QM::StatisticsEnum which;
    const wchar_t* name;
};

constexpr StatisticInfo statisticTable[] = {
    {QM::stMean, L"Mean"},
    {QM::stMinimum, L"Minimum"},
    {QM::stMaximum, L"Maximum"},
    {QM::stSum, L"Sum"},
    {QM::stStandardDeviation, L"StandardDeviation"},
    {QM::stMedian, L"Median"},
    {QM::stPercentile, L"Percentile"},
};

const wchar_t* StatisticName(QM::StatisticsEnum which)
{
    for (const StatisticInfo& info : statisticTable)
        if (info.which == which)
            return info.name;
    QUILON_RAISE(L"Unknown statistic: %1%", static_cast<std::int64_t>(which));
}

// Rank p / 100 * (n - 1) of sorted samples, interpolated.
double PercentileOfSorted(const std::vector<double>& sorted, double percent)
{
    const double rank = std::clamp(percent, 0.0, 100.0) / 100.0 * double(sorted.size() - 1);
    const auto below = std::size_t(std::floor(rank));
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (sorted[above] - sorted[below]) * (rank - double(below));
}

double Statistic(QM::StatisticsEnum which, std::vector<double>& samples, double percent)
{
    const double n = double(samples.size());
    double sum = 0;
    for (double v : samples)
        sum += v;
    switch (which) {
    case QM::stMean:
        return sum / n;
    case QM::stMinimum:
        return *std::min_element(samples.begin(), samples.end());
    case QM::stMaximum:
        return *std::max_element(samples.begin(), samples.end());
    case QM::stSum:
        return sum;
    case QM::stStandardDeviation: {
        const double mean = sum / n;
        double squares = 0;
        for (double v : samples)
            squares += (v - mean) * (v - mean);
        return std::sqrt(squares / n);
    }
    case QM::stMedian:
    case QM::stPercentile:
        std::sort(samples.begin(), samples.end());
        return PercentileOfSorted(samples, which == QM::stMedian ? 50.0 : percent);
    }
    return 0.0;
}

// The samples of the image's first volume under a mask.
template <class T>
void SamplesUnder(const BinaryMask& mask, const Images::BitmapView<T>& view, std::vector<double>& samples)
{
    samples.clear();
    const std::uint8_t* bit = mask.bits.data();
    for (std::int64_t k = 0; k < mask.size[2]; ++k)
        for (std::int64_t j = 0; j < mask.size[1]; ++j)
            for (std::int64_t i = 0; i < mask.size[0]; ++i, ++bit) {
                const std::int64_t x = mask.origin[0] + i, y = mask.origin[1] + j, z = mask.origin[2] + k;
                if (*bit && x >= 0 && y >= 0 && z >= 0 && x < view.size[ImgOps::slotX] &&
                    y < view.size[ImgOps::slotY] && z < view.size[ImgOps::slotZ])
                    samples.push_back(double(*view.At(x, y, z)));
            }
}

void MeasureStatistics(MeasuredShapes shapes, const ImgOps::ImageRef& image,
                       const std::vector<QM::StatisticsEnum>& selectors, double percent)
{
    std::vector<QM::StatisticsEnum> chosen = selectors;
    if (chosen.empty())
        for (const StatisticInfo& info : statisticTable)
            chosen.push_back(info.which);
    std::vector<ResultColumn> columns;
    for (QM::StatisticsEnum which : chosen) {
        ResultColumn column;
        column.name = MeasurementAttributeName(L"Statistics", StatisticName(which));
        column.kind = ResultColumn::doubleCells;
        columns.push_back(std::move(column));
    }
    ImgOps::DispatchRealSampleType(ImgOps::DataTypeOf(image), [&](auto tag) {
        using T = typename decltype(tag)::type;
        const Images::BitmapView<T> view = ImgOps::ViewOf<T>(image);
        std::vector<double> samples;
        for (const BinaryMask* mask : shapes.masks) {
            SamplesUnder(*mask, view, samples);
            for (std::size_t c = 0; c < chosen.size(); ++c) {
                columns[c].unset.push_back(samples.empty());
                columns[c].values.push_back(samples.empty() ? 0.0 : Statistic(chosen[c], samples, percent));
            }
        }
    });
    WriteColumns(*shapes.set, shapes.keys, columns);
}

void StatisticsOfAttribute(System::Ref<QOS::IAttribute> attribute, ImgOps::ImageRef image,
                           const std::vector<QM::StatisticsEnum>& selectors, double percent, double)
{
    MeasureStatistics(MeasuredShapes::Of(attribute), image, selectors, percent);
}

void StatisticsOfSet(System::Ref<QOS::IObjectSet> set, ImgOps::ImageRef image,
                     const std::vector<QM::StatisticsEnum>& selectors, double percent, double)
{
    MeasureStatistics(MeasuredShapes::Of(set), image, selectors, percent);
}

void RegisterStatistics()
{
    const System::LIString name(L"Reference statistics");
    QM::Functions::Statistics.Overload<0>().Register(name, &StatisticsOfAttribute);
    QM::Functions::Statistics.Overload<1>().Register(name, &StatisticsOfSet);
}

const System::Template::Initializer<::Library> statisticsRegistration(&RegisterStatistics, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
