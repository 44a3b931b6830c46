#include "Geometry/CoordinatesImpl.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/Raise.h"

#include <typeinfo>
#include <vector>

namespace Quilon_::Basic::Geometry {

using namespace Quilon_::Geometry;

void RaiseIndexOutOfRange(std::int64_t index, std::int64_t count)
{
    QUILON_RAISE(L"Coordinate index is out of range: '%1%' (axis count is '%2%')", index, count);
}

void RaiseMissingAxis(AxisEnum axis, Quilon_::Geometry::Axes axes)
{
    QUILON_RAISE(L"Coordinates of axes '%2%' have no axis %1%", System::ToString(axis), axes.ToString());
}

void RaiseTooManyValues(std::size_t count, Quilon_::Geometry::Axes axes)
{
    QUILON_RAISE(L"%1% values given for the axes '%2%'", static_cast<std::int64_t>(count), axes.ToString());
}

void RaiseAxesMismatch(Quilon_::Geometry::Axes a, Quilon_::Geometry::Axes b)
{
    QUILON_RAISE(L"Axes mismatch (%1% != %2%)", AxesToString(a), AxesToString(b));
}

namespace {

template <class I>
using Made = System::Ref<I>;
template <class I>
using CoordinateValue = typename I::ValueType;

template <class I>
Made<I> NewOfAxes(Quilon_::Geometry::Axes axes)
{
    return Made<I>(new CCoordinates<I>(axes));
}
template <class I>
Made<I> NewOf1(CoordinateValue<I> a, Quilon_::Geometry::Axes axes)
{
    return Made<I>(new CCoordinates<I>(axes, {a}));
}
template <class I>
Made<I> NewOf2(CoordinateValue<I> a, CoordinateValue<I> b, Quilon_::Geometry::Axes axes)
{
    return Made<I>(new CCoordinates<I>(axes, {a, b}));
}
template <class I>
Made<I> NewOf3(CoordinateValue<I> a, CoordinateValue<I> b, CoordinateValue<I> c, Quilon_::Geometry::Axes axes)
{
    return Made<I>(new CCoordinates<I>(axes, {a, b, c}));
}
template <class I>
Made<I> NewOf4(CoordinateValue<I> a, CoordinateValue<I> b, CoordinateValue<I> c, CoordinateValue<I> d,
               Quilon_::Geometry::Axes axes)
{
    return Made<I>(new CCoordinates<I>(axes, {a, b, c, d}));
}
template <class I>
Made<I> NewOfAll(CoordinateValue<I> x, CoordinateValue<I> y, CoordinateValue<I> z, CoordinateValue<I> t,
                 CoordinateValue<I> b)
{
    return Made<I>(new CCoordinates<I>(Quilon_::Geometry::Axes::aXYZTB, {x, y, z, t, b}));
}

template <class I, class Factory>
void RegisterCoordinatesFactory(Factory& factory)
{
    const wchar_t* name = L"Coordinates";
    factory.Register(name, &NewOfAxes<I>);
    factory.Register(name, &NewOf1<I>);
    factory.Register(name, &NewOf2<I>);
    factory.Register(name, &NewOf3<I>);
    factory.Register(name, &NewOf4<I>);
    factory.Register(name, &NewOfAll<I>);
}

template <class Item>
using CoordinatesStore = System::Collections::Template::Detail::ICollectionImplBase<Item>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

// A list of coordinates of one kind, typed and untyped over one store.
template <class I, class Item>
class CCoordinatesCollection
    : public System::Template::ObjectImpl<
          CCoordinatesCollection<I, Item>,
          System::Collections::Template::Detail::ICollectionImpl<I, Item, Events, CoordinatesStore<Item>>,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events, CoordinatesStore<Item>>,
          System::Collections::ICloneable> {
    using CoordinatesView =
        System::Collections::Template::Detail::ICollectionImpl<I, Item, Events, CoordinatesStore<Item>>;

public:
    CCoordinatesCollection() = default;
    explicit CCoordinatesCollection(const std::vector<System::Ref<Item>>& items) { this->m_items = items; }
    // A deep copy: coordinates are values.
    CCoordinatesCollection(const CCoordinatesCollection& other)
        : Events(), CoordinatesStore<Item>(), CCoordinatesCollection::ObjectImpl()
    {
        CoordinatesView::CopyFrom(other, true);
    }

    std::vector<System::Ref<Item>> ToVector() override { return this->m_items; }

    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::Collections::ICloneable, 1>(new CCoordinatesCollection(*this));
    }
};

template <class I, class Item>
System::Ref<I> NewCoordinatesCollection()
{
    return System::Ref<I>(new CCoordinatesCollection<I, Item>());
}
template <class I, class Item>
System::Ref<I> NewCollectionOf(const std::vector<System::Ref<Item>>& items)
{
    return System::Ref<I>(new CCoordinatesCollection<I, Item>(items));
}

template <class I, class Item, class Factory>
void RegisterCollectionFactory(Factory& factory)
{
    factory.Register(L"Coordinates collection", &NewCoordinatesCollection<I, Item>);
    factory.Register(L"Coordinates collection", &NewCollectionOf<I, Item>);
}

std::wstring AxesText(unsigned char axes)
{
    return Quilon_::Geometry::Axes(axes).ToString();
}

void RegisterCoordinates()
{
    RegisterCoordinatesFactory<ICoordinates>(Coordinates::New);
    RegisterCoordinatesFactory<ICoordinatesF>(CoordinatesF::New);
    RegisterCoordinatesFactory<ICoordinatesD>(CoordinatesD::New);
    RegisterCollectionFactory<ICoordinatesCollection, ICoordinates>(CoordinatesCollection::New);
    RegisterCollectionFactory<ICoordinatesFCollection, ICoordinatesF>(CoordinatesFCollection::New);
    RegisterCollectionFactory<ICoordinatesDCollection, ICoordinatesD>(CoordinatesDCollection::New);
    SetAxesToStringFunction1(&AxesText);
}

const System::Template::Initializer<::Library> coordinates(&RegisterCoordinates, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry

namespace Quilon_::Basic::Images {

System::Pointer<Quilon_::Geometry::ICoordinates, 1> CopyOfSize(Quilon_::Geometry::ICoordinates& size);

System::Pointer<Quilon_::Geometry::ICoordinates, 1> CopyOfSize(Quilon_::Geometry::ICoordinates& size)
{
    using Own = Basic::Geometry::CIntegerCoordinates;
    if (typeid(size) == typeid(Own))
        return System::Pointer<Quilon_::Geometry::ICoordinates, 1>(new Own(static_cast<const Own&>(size)));
    return System::Pointer<Quilon_::Geometry::ICoordinates, 1>(
        System::Pointer<System::ICloneable, 1>(System::Pointer<Quilon_::Geometry::ICoordinates, 1>(&size))
            ->Clone());
}

} // namespace Quilon_::Basic::Images
