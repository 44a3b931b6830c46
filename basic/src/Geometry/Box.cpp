// The boxes of the reference library: two corners of their own, which the
// box hands out live.
#include "Geometry/CoordinatesImpl.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/PrivateLibrary.h"

#include <utility>

namespace Quilon_::Basic::Geometry {

namespace {

namespace QG = Quilon_::Geometry;

template <class IB>
class CBox : public System::Template::ObjectImpl<CBox<IB>, IB, System::ICloneable, System::IEquatable> {
public:
    using C = typename IB::CoordinatesType;
    using V = typename C::ValueType;
    using Corner = System::Ref<C>;

    explicit CBox(QG::Axes axes) : m_lower(new CCoordinates<C>(axes)), m_upper(new CCoordinates<C>(axes)) {}
    CBox(std::initializer_list<V> lower, std::initializer_list<V> upper, QG::Axes axes)
        : m_lower(new CCoordinates<C>(axes, lower)), m_upper(new CCoordinates<C>(axes, upper))
    {
    }
    // Copies of the corners, so that the caller's objects stay theirs.
    CBox(const Corner& lower, const Corner& upper) : m_lower(Copy(lower)), m_upper(Copy(upper))
    {
        if (lower->Axes() != upper->Axes())
            RaiseAxesMismatch(lower->Axes(), upper->Axes());
    }

    QG::Axes Axes() const override { return m_lower->Axes(); }
    void SetAxes(QG::Axes axes) override
    {
        m_lower->SetAxes(axes);
        m_upper->SetAxes(axes);
    }
    Corner Lower() const override { return m_lower; }
    void SetLower(Corner lower) override { m_lower = CopyWithAxesOf(lower, m_upper); }
    Corner Upper() const override { return m_upper; }
    void SetUpper(Corner upper) override { m_upper = CopyWithAxesOf(upper, m_lower); }
    Corner Size() const override
    {
        typename CCoordinates<C>::Values size{};
        const std::int64_t count = m_lower->AxisCount();
        for (std::int64_t i = 0; i < count; ++i)
            size[static_cast<std::size_t>(i)] = m_upper->Value(i) - m_lower->Value(i);
        return Corner(new CCoordinates<C>(m_lower->Axes(), size));
    }
    void Normalize() override
    {
        const std::int64_t count = m_lower->AxisCount();
        for (std::int64_t i = 0; i < count; ++i) {
            const V lower = m_lower->Value(i);
            const V upper = m_upper->Value(i);
            if (upper < lower) {
                m_lower->SetValue(i, upper);
                m_upper->SetValue(i, lower);
            }
        }
    }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new CBox(m_lower, m_upper));
    }
    bool Equals(System::Pointer<System::Interface, 1> other) override
    {
        System::Pointer<IB, 0> box(other);
        return box && System::Equals(m_lower, box->Lower()) && System::Equals(m_upper, box->Upper());
    }

private:
    static Corner Copy(const Corner& corner)
    {
        const System::Pointer<C, 2> copy = corner;
        return copy;
    }
    static Corner CopyWithAxesOf(const Corner& corner, const Corner& other)
    {
        if (corner->Axes() != other->Axes())
            RaiseAxesMismatch(other->Axes(), corner->Axes());
        return Copy(corner);
    }

    Corner m_lower;
    Corner m_upper;
};

template <class IB>
using Made = System::Ref<IB>;
template <class IB>
using V = typename IB::CoordinatesType::ValueType;

template <class IB>
Made<IB> NewEmptyBox(QG::Axes axes)
{
    return Made<IB>(new CBox<IB>(axes));
}
template <class IB>
Made<IB> NewPlanar(V<IB> x0, V<IB> y0, V<IB> x1, V<IB> y1, QG::Axes axes)
{
    return Made<IB>(new CBox<IB>({x0, y0}, {x1, y1}, axes));
}
template <class IB>
Made<IB> NewSpatial(V<IB> x0, V<IB> y0, V<IB> z0, V<IB> x1, V<IB> y1, V<IB> z1, QG::Axes axes)
{
    return Made<IB>(new CBox<IB>({x0, y0, z0}, {x1, y1, z1}, axes));
}
template <class IB>
Made<IB> NewOfCorners(System::Ref<typename IB::CoordinatesType> lower,
                      System::Ref<typename IB::CoordinatesType> upper)
{
    return Made<IB>(new CBox<IB>(lower, upper));
}

template <class IB, class Factory>
void RegisterBoxFactory(Factory& factory)
{
    factory.Register(L"Box", &NewEmptyBox<IB>);
    factory.Register(L"Box", &NewPlanar<IB>);
    factory.Register(L"Box", &NewSpatial<IB>);
    factory.Register(L"Box", &NewOfCorners<IB>);
}

void RegisterBoxes()
{
    RegisterBoxFactory<QG::IBox>(QG::Box::New);
    RegisterBoxFactory<QG::IBoxF>(QG::BoxF::New);
    RegisterBoxFactory<QG::IBoxD>(QG::BoxD::New);
}

const System::Template::Initializer<::Library> boxes(&RegisterBoxes, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
