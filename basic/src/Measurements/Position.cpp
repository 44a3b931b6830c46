// Positions: the reference library's double coordinates with a unit.
#include "Geometry/CoordinatesImpl.h"

#include "Quilon_/Measurements/Position.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;

namespace {

class CPosition : public Geometry::CoordinatesImpl<CPosition, IPosition> {
public:
    using CoordinatesImpl::CoordinatesImpl;

    System::Pointer<IUnit, 0> Unit() override { return m_unit; }
    void SetUnit(System::Pointer<IUnit, 0> unit) override { m_unit = std::move(unit); }
    // The unit counts too: 1 mm is not 1 um.
    bool Equals(System::Pointer<System::Interface, 1> other) override
    {
        System::Pointer<IPosition, 0> position(other);
        return CoordinatesImpl::Equals(other) && position->Unit().Get() == m_unit.Get();
    }

private:
    System::Pointer<IUnit, 0> m_unit;
};

System::Ref<IPosition> NewPosition(Quilon_::Geometry::Axes axes)
{
    return System::Ref<IPosition>(new CPosition(axes));
}

void RegisterPosition()
{
    Position::New.Register(L"Position", &NewPosition);
}

const System::Template::Initializer<::Library> position(&RegisterPosition, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Measurements
