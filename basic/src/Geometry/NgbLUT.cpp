// Neighbourhood look-up tables: the predefined rules on the ring of eight
// neighbours, and tables from textual patterns, for the core's New objects.
// The table holds one entry per configuration, so that an operator pays one
// load per point.
#include "Geometry/NgbGraphOffsets.h"

#include "Quilon_/Basic/Geometry/Neighbourhoods.h"
#include "Quilon_/Geometry/NgbLUT.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <array>

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;

namespace {

class CNgbLUT : public System::Template::ObjectImpl<CNgbLUT, INgbLUT>, public LookUpTableView {
public:
    CNgbLUT(Ref<INgbGraph> graph, std::vector<unsigned char> table)
        : m_graph(std::move(graph)), m_table(std::move(table))
    {
    }

    Ref<INgbGraph> Graph() override { return m_graph; }
    std::int64_t Size() override { return static_cast<std::int64_t>(m_table.size()); }
    unsigned char Value(std::int64_t configuration) override
    {
        if (configuration < 0 || configuration >= Size())
            QUILON_RAISE(L"Configuration %1% is outside the table of %2% entries", configuration, Size());
        return m_table[static_cast<std::size_t>(configuration)];
    }
    std::vector<unsigned char> Table() override { return m_table; }

    std::span<const unsigned char> Table() const override { return m_table; }

private:
    Ref<INgbGraph> m_graph;
    std::vector<unsigned char> m_table;
};

// One configuration of pngSquare8: the centre and the ring x[1] .. x[8]
// (x[1] east, odd indices the 4-neighbours), with x[9], x[10] wrapping to
// x[1], x[2].
struct Ring {
    explicit Ring(unsigned code) : centre(code & 1)
    {
        for (int k = 1; k <= 8; ++k)
            x[k] = (code >> k) & 1;
        x[9] = x[1];
        x[10] = x[2];
    }

    int Neighbours() const { return x[1] + x[2] + x[3] + x[4] + x[5] + x[6] + x[7] + x[8]; }
    // 0-to-1 steps around the ring.
    int Crossings() const
    {
        int steps = 0;
        for (int k = 1; k <= 8; ++k)
            steps += !x[k] && x[k + 1];
        return steps;
    }
    // The connectivity number of the 8-connected object (4-connected
    // background): 1 for a simple point.
    int Connectivity8() const
    {
        int number = 0;
        for (int k = 1; k <= 7; k += 2)
            number += (1 - x[k]) - (1 - x[k]) * (1 - x[k + 1]) * (1 - x[k + 2]);
        return number;
    }
    // The same for a 4-connected object.
    int Connectivity4() const
    {
        int number = 0;
        for (int k = 1; k <= 7; k += 2)
            number += x[k] - x[k] * x[k + 1] * x[k + 2];
        return number;
    }
    bool IsEndPoint() const { return (Neighbours() == 1 || Neighbours() == 2) && Crossings() == 1; }
    bool IsSimple() const { return Connectivity8() == 1; }

    int centre;
    std::array<int, 11> x{};
};

// The new value of an object point (centre 1) under each rule.
bool Rule(PredefinedNgbLUTEnum value, const Ring& ring)
{
    switch (value) {
    case pnlSinglePoints:
        return ring.Neighbours() == 0;
    case pnlMultiplePoints:
        return ring.Crossings() >= 3;
    case pnlEndPoints:
        return ring.IsEndPoint();
    case pnlBoundaryPoints:
        return !(ring.x[1] && ring.x[3] && ring.x[5] && ring.x[7]);
    case pnlPruning:
        return ring.Neighbours() > 1;
    case pnlHomotopicPruning:
        return !ring.IsEndPoint();
    case pnlCentroid:
        return !(ring.IsSimple() && ring.Neighbours() >= 1);
    case pnlSKIZ:
        return ring.Connectivity4() != 1;
    case pnlSkeleton1:
        return !(ring.IsSimple() && ring.Neighbours() >= 2 && !ring.IsEndPoint());
    }
    QUILON_RAISE(L"Unknown predefined look-up table: %1%", System::ToString(value));
}

std::vector<unsigned char> PredefinedTable(PredefinedNgbLUTEnum value)
{
    std::vector<unsigned char> table(512, 0);
    for (unsigned code = 1; code < 512; code += 2)
        table[code] = Rule(value, Ring(code)) ? 1 : 0;
    return table;
}

void CheckRing(PredefinedNgbLUTEnum value, std::span<const Offset> offsets)
{
    const std::vector<Offset> ring = PredefinedGraphOffsets(pngSquare8);
    if (!std::equal(offsets.begin(), offsets.end(), ring.begin(), ring.end()))
        QUILON_RAISE(L"The look-up table %1% is defined on the graph pngSquare8 only",
                     System::ToString(value));
}

Ref<INgbLUT> NewOnGraph(PredefinedNgbLUTEnum value, Ref<INgbGraph> graph)
{
    std::vector<unsigned char> table = PredefinedTable(value);
    CheckRing(value, ReadOffsets(*graph));
    return Ref<INgbLUT>(new CNgbLUT(graph, std::move(table)));
}

Ref<INgbLUT> NewOnPredefinedGraph(PredefinedNgbLUTEnum value, PredefinedNgbGraphEnum graph)
{
    std::vector<unsigned char> table = PredefinedTable(value);
    const std::vector<Offset> offsets = PredefinedGraphOffsets(graph);
    CheckRing(value, offsets);
    return Ref<INgbLUT>(new CNgbLUT(MakeGraph(offsets, QG::Axes::aXY), std::move(table)));
}

constexpr std::int64_t maximumNeighbours = 16;

Ref<INgbLUT> NewFromText(Ref<System::Collections::IStringCollection> patterns, Ref<INgbGraph> graph)
{
    const std::int64_t neighbours = graph->Count();
    if (neighbours > maximumNeighbours)
        QUILON_RAISE(L"Look-up tables are made for graphs of at most %1% neighbours, not %2%",
                     maximumNeighbours, neighbours);
    const auto length = static_cast<std::size_t>(neighbours + 1);
    std::vector<unsigned char> table(std::size_t(1) << length, 0);
    for (std::int64_t i = 0; i < patterns->Count(); ++i) {
        const std::wstring text = patterns->Item(i);
        // The bits a configuration must have (`care`) and their values.
        unsigned care = 0, set = 0;
        std::size_t position = 0;
        for (wchar_t c : text) {
            if (c == L' ')
                continue;
            const unsigned bit = position < length ? 1u << position : 0;
            if (c == L'1')
                set |= bit;
            if (c == L'0' || c == L'1')
                care |= bit;
            else if (c != L'x')
                position = length;
            ++position;
        }
        if (position != length)
            QUILON_RAISE(L"Pattern '%1%' of a look-up table must have %2% characters of '0', '1' and 'x'",
                         text, static_cast<std::int64_t>(length));
        for (std::size_t code = 0; code < table.size(); ++code)
            if ((code & care) == set)
                table[code] = 1;
    }
    return Ref<INgbLUT>(new CNgbLUT(graph, std::move(table)));
}

void RegisterLookUpTables()
{
    NgbLUT::New.Register(L"Neighbourhood look-up table", &NewOnPredefinedGraph);
    NgbLUT::New.Register(L"Neighbourhood look-up table", &NewOnGraph);
    NgbLUT::New.Register(L"Neighbourhood look-up table", &NewFromText);
}

const System::Template::Initializer<::Library> lookUpTables(&RegisterLookUpTables, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
