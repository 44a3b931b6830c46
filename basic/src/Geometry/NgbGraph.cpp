// Neighbourhood graphs: the predefined ones and graphs from points, for the
// core's New objects. A graph is a read-only collection of its offsets.
#include "Geometry/NgbGraphOffsets.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;

namespace {

using NgbGraphStore = System::Collections::Template::Detail::ICollectionImplBase<ICoordinates>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

class CNgbGraph
    : public System::Template::ObjectImpl<
          CNgbGraph,
          System::Collections::Template::Detail::ICollectionImpl<INgbGraph, ICoordinates, Events,
                                                                 NgbGraphStore>,
          System::Collections::Template::Detail::ICollectionImpl<System::Collections::ICollection,
                                                                 System::Interface, Events, NgbGraphStore>> {
public:
    explicit CNgbGraph(std::vector<Ref<ICoordinates>> offsets)
    {
        m_items = std::move(offsets);
        m_readOnly = true;
    }
    std::vector<Ref<ICoordinates>> ToVector() override { return m_items; }
};

} // namespace

std::vector<Offset> PredefinedGraphOffsets(QG::PredefinedNgbGraphEnum value)
{
    switch (value) {
    case pngSquare4:
        return {{1, 0}, {0, -1}, {-1, 0}, {0, 1}};
    case pngSquare8:
        return {{1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}};
    case pngHexagonal6:
        return {{1, 0}, {0, -1}, {-1, -1}, {-1, 0}, {0, 1}, {1, 1}};
    case pngCubic6:
        return {{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}, {0, 0, -1}, {0, 0, 1}};
    case pngCubic26: {
        std::vector<Offset> offsets;
        for (std::int64_t z = -1; z <= 1; ++z)
            for (std::int64_t y = -1; y <= 1; ++y)
                for (std::int64_t x = -1; x <= 1; ++x)
                    if (x != 0 || y != 0 || z != 0)
                        offsets.push_back({x, y, z});
        return offsets;
    }
    }
    QUILON_RAISE(L"Unknown predefined neighbourhood graph: %1%", System::ToString(value));
}

Ref<INgbGraph> MakeGraph(std::span<const Offset> offsets, QG::Axes axes)
{
    std::vector<Ref<ICoordinates>> items;
    items.reserve(offsets.size());
    for (const Offset& offset : offsets)
        items.push_back(ToCoordinates(offset, axes));
    return Ref<INgbGraph>(new CNgbGraph(std::move(items)));
}

namespace {

Ref<INgbGraph> NewPredefinedGraph(PredefinedNgbGraphEnum value, QG::Axes axes)
{
    std::vector<Offset> offsets = PredefinedGraphOffsets(value);
    CheckSpatialAxes(axes, PredefinedDimension(value));
    return MakeGraph(offsets, axes);
}

Ref<INgbGraph> NewGraphFromPoints(Ref<ICoordinatesCollection> points)
{
    if (points->Count() == 0)
        QUILON_RAISE(L"A neighbourhood graph needs at least one neighbour");
    const QG::Axes axes = points->Item(0)->Axes();
    for (std::int64_t i = 1; i < points->Count(); ++i)
        if (points->Item(i)->Axes() != axes)
            QUILON_RAISE(L"The neighbours of a graph have different axes: '%1%' and '%2%'", axes.ToString(),
                         points->Item(i)->Axes().ToString());
    return MakeGraph(ReadOffsets(*points), axes);
}

void RegisterGraphs()
{
    NgbGraph::New.Register(L"Neighbourhood graph", &NewPredefinedGraph);
    NgbGraph::New.Register(L"Neighbourhood graph", &NewGraphFromPoints);
}

const System::Template::Initializer<::Library> graphs(&RegisterGraphs, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
