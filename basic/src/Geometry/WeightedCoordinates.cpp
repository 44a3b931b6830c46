// Weighted coordinates and their collection, for the core's New objects.
#include "Geometry/WeightedCoordinatesImpl.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;
namespace QG = ::Quilon_::Geometry;

namespace {

using WeightedCoordinatesStore =
    System::Collections::Template::Detail::ICollectionImplBase<IWeightedCoordinates>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

class CWeightedCoordinatesCollection
    : public System::Template::ObjectImpl<
          CWeightedCoordinatesCollection,
          System::Collections::Template::Detail::ICollectionImpl<
              IWeightedCoordinatesCollection, IWeightedCoordinates, Events, WeightedCoordinatesStore>,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events, WeightedCoordinatesStore>> {
public:
    std::vector<Ref<IWeightedCoordinates>> ToVector() override { return m_items; }
    double WeightSum() override
    {
        double sum = 0;
        for (const auto& item : m_items)
            sum += item->Weight();
        return sum;
    }
};

using V = std::int64_t;

Ref<IWeightedCoordinates> Make(QG::Axes axes, std::initializer_list<V> values, double weight)
{
    return Ref<IWeightedCoordinates>(new CWeightedCoordinates(axes, values, weight));
}

Ref<IWeightedCoordinates> New0(QG::Axes axes)
{
    return Make(axes, {}, 0.0);
}
Ref<IWeightedCoordinates> New1(V x, double weight, QG::Axes axes)
{
    return Make(axes, {x}, weight);
}
Ref<IWeightedCoordinates> New2(V x, V y, double weight, QG::Axes axes)
{
    return Make(axes, {x, y}, weight);
}
Ref<IWeightedCoordinates> New3(V x, V y, V z, double weight, QG::Axes axes)
{
    return Make(axes, {x, y, z}, weight);
}
Ref<IWeightedCoordinates> New4(V x, V y, V z, V t, double weight, QG::Axes axes)
{
    return Make(axes, {x, y, z, t}, weight);
}
Ref<IWeightedCoordinates> New5(V x, V y, V z, V t, V b, double weight)
{
    return Make(QG::Axes::aXYZTB, {x, y, z, t, b}, weight);
}

Ref<IWeightedCoordinatesCollection> NewWeightedCoordinatesCollection()
{
    return Ref<IWeightedCoordinatesCollection>(new CWeightedCoordinatesCollection);
}

Ref<IWeightedCoordinatesCollection> NewCollectionOf(const std::vector<Ref<IWeightedCoordinates>>& items)
{
    Ref<IWeightedCoordinatesCollection> result(new CWeightedCoordinatesCollection);
    for (const auto& item : items)
        result->Add(item);
    return result;
}

void RegisterWeightedCoordinates()
{
    const wchar_t* name = L"Weighted coordinates";
    WeightedCoordinates::New.Register(name, &New0);
    WeightedCoordinates::New.Register(name, &New1);
    WeightedCoordinates::New.Register(name, &New2);
    WeightedCoordinates::New.Register(name, &New3);
    WeightedCoordinates::New.Register(name, &New4);
    WeightedCoordinates::New.Register(name, &New5);
    WeightedCoordinatesCollection::New.Register(L"Weighted coordinates collection",
                                                &NewWeightedCoordinatesCollection);
    WeightedCoordinatesCollection::New.Register(L"Weighted coordinates collection", &NewCollectionOf);
}

const System::Template::Initializer<::Library> weightedCoordinates(&RegisterWeightedCoordinates, nullptr,
                                                                   0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
