// Profiles, behind Profile::New.
#include "Quilon_/Measurements/Profile.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using Quilon_::Geometry::Axes;
using System::Ref;

namespace {

class CProfile : public System::Template::ObjectImpl<CProfile, IProfile> {
public:
    CProfile(std::int64_t length, Quilon_::Geometry::Axes axes) : m_axes(axes)
    {
        if (length < 0)
            QUILON_RAISE(L"A profile cannot have %1% samples", length);
        m_values.assign(static_cast<std::size_t>(length), 0.0);
        m_positions.reserve(m_values.size());
        for (std::int64_t i = 0; i < length; ++i)
            m_positions.push_back(Position::New(axes));
    }

    std::int64_t Length() override { return static_cast<std::int64_t>(m_values.size()); }
    Quilon_::Geometry::Axes Axes() override { return m_axes; }
    std::vector<double> Values() override { return m_values; }
    void SetValues(const std::vector<double>& values) override
    {
        if (values.size() != m_values.size())
            QUILON_RAISE(L"A profile of %1% samples cannot take %2% values", Length(),
                         static_cast<std::int64_t>(values.size()));
        m_values = values;
    }
    Ref<IPosition> Position(std::int64_t index) override { return m_positions[Checked(index)]; }
    double Distance(std::int64_t index) override
    {
        double distance = 0.0;
        for (std::size_t i = 1; i <= Checked(index); ++i) {
            double squares = 0.0;
            for (std::int64_t a = 0; a < m_positions[i]->AxisCount(); ++a) {
                const double step = m_positions[i]->Value(a) - m_positions[i - 1]->Value(a);
                squares += step * step;
            }
            distance += std::sqrt(squares);
        }
        return distance;
    }

private:
    std::size_t Checked(std::int64_t index)
    {
        if (index < 0 || index >= Length())
            QUILON_RAISE(L"Sample %1% is outside a profile of %2% samples", index, Length());
        return static_cast<std::size_t>(index);
    }

    Quilon_::Geometry::Axes m_axes;
    std::vector<double> m_values;
    std::vector<Ref<IPosition>> m_positions;
};

Ref<IProfile> NewProfile(std::int64_t length, Axes axes)
{
    return Ref<IProfile>(new CProfile(length, axes));
}

// The positions of `source` over the axes that both have; the unit too.
Ref<IProfile> NewProfileAlong(std::int64_t length, Ref<IProfile> source, Axes axes)
{
    Ref<IProfile> made = NewProfile(length, axes);
    const std::int64_t shared = std::min(length, source->Length());
    for (std::int64_t i = 0; i < shared; ++i) {
        Ref<IPosition> from = source->Position(i);
        Ref<IPosition> to = made->Position(i);
        for (Quilon_::Geometry::AxisEnum axis : axes.ToVector()) {
            if (from->IndexOfAxis(axis) >= 0)
                to->SetValue(axis, from->Value(axis));
        }
        to->SetUnit(from->Unit());
    }
    return made;
}

void RegisterProfile()
{
    Profile::New.Register(L"Profile", &NewProfile);
    Profile::New.Register(L"Profile", &NewProfileAlong);
}

const System::Template::Initializer<::Library> profile(&RegisterProfile, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
