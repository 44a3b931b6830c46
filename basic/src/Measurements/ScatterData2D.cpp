// Scatter data, behind ScatterData2D::New.
#include "Quilon_/Measurements/ScatterData2D.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::Ref;

namespace {

class CScatterData2D : public System::Template::ObjectImpl<CScatterData2D, IScatterData2D> {
public:
    explicit CScatterData2D(std::vector<Series> series) : m_series(std::move(series)) {}

    std::int64_t SeriesCount() override { return static_cast<std::int64_t>(m_series.size()); }
    Series Item(std::int64_t index) override
    {
        if (index < 0 || index >= SeriesCount())
            QUILON_RAISE(L"Series %1% is outside scatter data of %2% series", index, SeriesCount());
        return m_series[static_cast<std::size_t>(index)];
    }
    std::int64_t AddSeries(const Series& series) override
    {
        m_series.push_back(series);
        return SeriesCount() - 1;
    }

private:
    std::vector<Series> m_series;
};

Ref<IScatterData2D> NewScatterData(const std::vector<std::vector<std::pair<double, double>>>& series)
{
    return Ref<IScatterData2D>(new CScatterData2D(series));
}

void RegisterScatterData()
{
    ScatterData2D::New.Register(L"Scatter data", &NewScatterData);
}

const System::Template::Initializer<::Library> scatterData(&RegisterScatterData, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
