// Structuring elements, neighbourhood graphs and look-up tables of the
// reference library, started in a child process per test.
#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/Geometry/NgbLUT.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Geometry/TwoD/Polygon.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/String.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

namespace Quilon_::Tests::NeighbourhoodTests {

using namespace Quilon_::Geometry;
using System::Ref;

using Triple = std::array<std::int64_t, 3>;

std::vector<Triple> OffsetsOf(const Ref<ICoordinatesCollection>& points)
{
    std::vector<Triple> offsets;
    for (std::int64_t i = 0; i < points->Count(); ++i) {
        Ref<ICoordinates> p = points->Item(i);
        offsets.push_back({p->X(), p->Y(), p->IndexOfAxis(aZ) >= 0 ? p->Z() : 0});
    }
    return offsets;
}

TEST(StructuringElements, PredefinedShapesHaveTheirPointCountsPerRadius)
{
    InChildProcess([] {
        StartBasic();
        struct Row {
            PredefinedStructuringElementEnum value;
            std::array<std::int64_t, 4> counts; // radius 0, 1, 2, 3
        };
        const Row rows[] = {
            {pseSquare, {1, 9, 25, 49}},     {pseDiamond, {1, 5, 13, 25}},
            {pseDisk, {1, 5, 13, 29}},       {pseHorizontalLine, {1, 3, 5, 7}},
            {pseVerticalLine, {1, 3, 5, 7}}, {pseLine45, {1, 3, 5, 7}},
            {pseLine135, {1, 3, 5, 7}},      {pseCube, {1, 27, 125, 343}},
            {pseOctahedron, {1, 7, 25, 63}}, {pseBall, {1, 7, 33, 123}},
        };
        for (const Row& row : rows) {
            for (int radius = 0; radius <= 3; ++radius) {
                SCOPED_TRACE(System::ToAnsi(System::ToString(row.value)) + " radius " +
                             std::to_string(radius));
                Ref<IStructuringElement> element = StructuringElement::New(row.value, double(radius));
                EXPECT_EQ(element->Points()->Count(), row.counts[radius]);
                const std::vector<unsigned char> mask = element->Mask();
                EXPECT_EQ(std::accumulate(mask.begin(), mask.end(), std::int64_t(0)), row.counts[radius]);
                EXPECT_EQ(element->Axes(), PredefinedDimension(row.value) == 3 ? Axes::aXYZ : Axes::aXY);
            }
        }
        // The disk follows the real radius: at 1.5 the diagonals (1.414) are in.
        EXPECT_EQ(StructuringElement::New(pseDisk, 1.5)->Points()->Count(), 9);
        EXPECT_DOUBLE_EQ(StructuringElement::New(pseDisk, 1.5)->Radius(), 1.5);
    });
}

TEST(StructuringElements, OrientationEmbeddingAndElementsFromPoints)
{
    InChildProcess([] {
        StartBasic();
        // Images grow downwards: the 45 degree line rises to the right.
        Ref<IStructuringElement> line = StructuringElement::New(pseLine45, 1.0);
        EXPECT_EQ(OffsetsOf(line->Points()), (std::vector<Triple>{{1, -1, 0}, {0, 0, 0}, {-1, 1, 0}}));
        EXPECT_EQ(line->Mask(), (std::vector<unsigned char>{0, 0, 1, 0, 1, 0, 1, 0, 0}));

        Ref<IStructuringElement> flat = StructuringElement::New(pseDiamond, 1.0, Axes::aXYZ);
        for (const Triple& offset : OffsetsOf(flat->Points()))
            EXPECT_EQ(offset[2], 0);
        Ref<IBox> bounds = flat->Bounds();
        EXPECT_EQ(bounds->Lower()->Z(), 0);
        EXPECT_EQ(bounds->Upper()->Z(), 1);

        Ref<ICoordinatesCollection> points = CoordinatesCollection::New();
        points->Add(Coordinates::New(0, 0, Axes::aXY));
        points->Add(Coordinates::New(2, -1, Axes::aXY));
        points->Add(Coordinates::New(2, -1, Axes::aXY));
        Ref<IStructuringElement> own = StructuringElement::New(points);
        EXPECT_EQ(OffsetsOf(own->Points()), (std::vector<Triple>{{0, 0, 0}, {2, -1, 0}}));
        EXPECT_DOUBLE_EQ(own->Radius(), 2);
        EXPECT_EQ(OffsetsOf(own->Transposed()->Points()), (std::vector<Triple>{{0, 0, 0}, {-2, 1, 0}}));
    });
}

TEST(StructuringElements, FromAShapeTakeTheOffsetsItContainsAtTheirScale)
{
    InChildProcess([] {
        StartBasic();
        Ref<IShapeND> square(
            TwoD::PolygonF::New(Drawing::PointFCollection::New(std::vector<Drawing::Point<float>>{
                                    {-1.2f, -1.2f}, {1.2f, -1.2f}, {1.2f, 1.2f}, {-1.2f, 1.2f}}),
                                Axes::aXY));
        EXPECT_EQ(StructuringElement::New(square, 1.0)->Points()->Count(), 9);
        Ref<IStructuringElement> doubled = StructuringElement::New(square, 2.0);
        EXPECT_EQ(doubled->Points()->Count(), 25);
        EXPECT_DOUBLE_EQ(doubled->Radius(), 2);
        EXPECT_EQ(RaisedMessage([&] { StructuringElement::New(square, 0.0); }),
                  L"The scale of a structuring element must be positive: 0");
    });
}

TEST(StructuringElements, RefuseBadInput)
{
    InChildProcess([] {
        StartBasic();
        EXPECT_EQ(RaisedMessage([] {
                      StructuringElement::New(static_cast<PredefinedStructuringElementEnum>(600), 1.0);
                  }),
                  L"Unknown predefined structuring element: 600");
        EXPECT_EQ(RaisedMessage([] { StructuringElement::New(pseDisk, -0.5); }),
                  L"The radius of a structuring element must not be negative: -0.5");
        EXPECT_EQ(RaisedMessage([] { StructuringElement::New(pseBall, 1.0, Axes::aXYB); }),
                  L"Axes 'XYB' have fewer than 3 spatial axes");
        EXPECT_EQ(RaisedMessage([] { StructuringElement::New(CoordinatesCollection::New()); }),
                  L"A structuring element needs at least one point");
    });
}

TEST(NgbGraphs, PredefinedGraphsListTheirOffsetsInTheDocumentedOrder)
{
    InChildProcess([] {
        StartBasic();
        struct Row {
            PredefinedNgbGraphEnum value;
            Axes axes;
            std::vector<Triple> offsets;
        };
        const Row rows[] = {
            {pngSquare4, Axes::aXY, {{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}}},
            {pngSquare8,
             Axes::aXYB,
             {{1, 0, 0}, {1, -1, 0}, {0, -1, 0}, {-1, -1, 0}, {-1, 0, 0}, {-1, 1, 0}, {0, 1, 0}, {1, 1, 0}}},
            {pngHexagonal6,
             Axes::aXY,
             {{1, 0, 0}, {0, -1, 0}, {-1, -1, 0}, {-1, 0, 0}, {0, 1, 0}, {1, 1, 0}}},
            {pngCubic6, Axes::aXYZ, {{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}, {0, 0, -1}, {0, 0, 1}}},
        };
        for (const Row& row : rows) {
            SCOPED_TRACE(System::ToAnsi(System::ToString(row.value)));
            Ref<INgbGraph> graph = NgbGraph::New(row.value, row.axes);
            EXPECT_EQ(OffsetsOf(graph), row.offsets);
            EXPECT_EQ(graph->Item(0)->Axes(), row.axes);
        }
        std::vector<Triple> cubic = OffsetsOf(NgbGraph::New(pngCubic26, Axes::aXYZ));
        ASSERT_EQ(cubic.size(), 26u);
        EXPECT_EQ(cubic.front(), (Triple{-1, -1, -1}));
        EXPECT_EQ(cubic[13], (Triple{1, 0, 0}));
        EXPECT_EQ(cubic.back(), (Triple{1, 1, 1}));

        Ref<INgbGraph> graph = NgbGraph::New(pngSquare4, Axes::aXY);
        EXPECT_TRUE(graph->IsReadOnly());
        EXPECT_FALSE(RaisedMessage([&] { graph->Add(Coordinates::New(2, 2, Axes::aXY)); }).empty());
        EXPECT_EQ(graph->Count(), 4);
        EXPECT_EQ(OffsetsOf(NgbGraph::New(Ref<ICoordinatesCollection>(graph))), OffsetsOf(graph));

        EXPECT_EQ(RaisedMessage([] { NgbGraph::New(static_cast<PredefinedNgbGraphEnum>(770), Axes::aXYZ); }),
                  L"Unknown predefined neighbourhood graph: 770");
        EXPECT_EQ(RaisedMessage([] { NgbGraph::New(pngCubic6, Axes::aXYT); }),
                  L"Axes 'XYT' have fewer than 3 spatial axes");
    });
}

// A string list for textual tables; the core declares the interface only.
class CStrings : public System::Template::ObjectImpl<CStrings, System::Collections::IStringCollection> {
public:
    explicit CStrings(std::vector<std::wstring> items) : m_items(std::move(items)) {}
    std::int64_t Count() override { return static_cast<std::int64_t>(m_items.size()); }
    std::int64_t IndexOf(const std::wstring& item) override
    {
        auto found = std::find(m_items.begin(), m_items.end(), item);
        return found == m_items.end() ? -1 : found - m_items.begin();
    }
    std::wstring Item(std::int64_t index) override { return m_items.at(static_cast<std::size_t>(index)); }
    void SetItem(std::int64_t index, const std::wstring& item) override { m_items.at(index) = item; }
    std::int64_t Add(const std::wstring& item) override
    {
        m_items.push_back(item);
        return Count() - 1;
    }
    void Insert(std::int64_t index, const std::wstring& item) override
    {
        m_items.insert(m_items.begin() + index, item);
    }
    bool RemoveAt(std::int64_t index) override
    {
        m_items.erase(m_items.begin() + index);
        return true;
    }
    bool Remove(const std::wstring& item) override { return IndexOf(item) >= 0 && RemoveAt(IndexOf(item)); }
    void Clear() override { m_items.clear(); }
    bool IsReadOnly() override { return false; }

private:
    std::vector<std::wstring> m_items;
};

// The code of a 3 x 3 picture ("..." rows from the top, '#' set) on the
// ring of pngSquare8: bit 0 the centre, bits 1 to 8 east, north-east,
// north, north-west, west, south-west, south, south-east.
std::int64_t Code(const char (&picture)[10])
{
    auto at = [&](int x, int y) { return picture[(y + 1) * 3 + (x + 1)] == '#' ? 1 : 0; };
    const int ring[8][2] = {{1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}};
    std::int64_t code = at(0, 0);
    for (int k = 0; k < 8; ++k)
        code |= std::int64_t(at(ring[k][0], ring[k][1])) << (k + 1);
    return code;
}

TEST(NgbLUTs, PredefinedRulesOnKnownConfigurations)
{
    InChildProcess([] {
        StartBasic();
        const PredefinedNgbLUTEnum rules[] = {pnlSinglePoints,   pnlMultiplePoints, pnlEndPoints,
                                              pnlBoundaryPoints, pnlPruning,        pnlHomotopicPruning,
                                              pnlCentroid,       pnlSKIZ,           pnlSkeleton1};
        struct Row {
            const char* name;
            std::int64_t code;
            std::array<int, 9> values; // in the order of `rules`
        };
        const Row rows[] = {
            {"isolated point", Code("....#...."), {1, 0, 0, 1, 0, 1, 1, 1, 1}},
            {"end of a line", Code("....##..."), {0, 0, 1, 1, 0, 0, 0, 0, 1}},
            {"middle of a line", Code("...###..."), {0, 0, 0, 1, 1, 1, 1, 1, 1}},
            {"branch point", Code("#.#.#..#."), {0, 1, 0, 1, 1, 1, 1, 0, 1}},
            {"edge of a blob", Code("...######"), {0, 0, 0, 1, 1, 1, 0, 0, 0}},
            {"inside a blob", Code("#########"), {0, 0, 0, 0, 1, 1, 1, 1, 1}},
            {"background", Code("####.####"), {0, 0, 0, 0, 0, 0, 0, 0, 0}},
        };
        for (std::size_t r = 0; r < std::size(rules); ++r) {
            Ref<INgbLUT> table = NgbLUT::New(rules[r], pngSquare8);
            ASSERT_EQ(table->Size(), 512);
            for (const Row& row : rows)
                EXPECT_EQ(table->Value(row.code), row.values[r])
                    << System::ToAnsi(System::ToString(rules[r])) << ", " << row.name;
        }
        Ref<INgbLUT> ends = NgbLUT::New(pnlEndPoints, NgbGraph::New(pngSquare8, Axes::aXY));
        EXPECT_EQ(ends->Table(), NgbLUT::New(pnlEndPoints, pngSquare8)->Table());
        EXPECT_EQ(ends->Graph()->Count(), 8);

        EXPECT_EQ(RaisedMessage([&] { ends->Value(512); }),
                  L"Configuration 512 is outside the table of 512 entries");
        EXPECT_EQ(RaisedMessage([] { NgbLUT::New(pnlSkeleton1, pngHexagonal6); }),
                  L"The look-up table pnlSkeleton1 is defined on the graph pngSquare8 only");
        EXPECT_EQ(RaisedMessage([] { NgbLUT::New(static_cast<PredefinedNgbLUTEnum>(0), pngSquare8); }),
                  L"Unknown predefined look-up table: 0");
    });
}

// A small binary picture with a background border, to run a table on it
// the way a sequential operator does: in place, in raster order, until
// nothing changes.
struct Picture {
    int width, height;
    std::vector<int> pixels;

    Picture(std::initializer_list<const char*> rows)
        : width(int(std::string(*rows.begin()).size()) + 2), height(int(rows.size()) + 2),
          pixels(std::size_t(width * height), 0)
    {
        int y = 1;
        for (const char* row : rows) {
            for (int x = 0; row[x]; ++x)
                At(x + 1, y) = row[x] == '#';
            ++y;
        }
    }
    int& At(int x, int y) { return pixels[std::size_t(y * width + x)]; }
    int Count() const { return std::accumulate(pixels.begin(), pixels.end(), 0); }

    void RunUntilStable(const std::vector<unsigned char>& table)
    {
        const int ring[8][2] = {{1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}};
        for (bool changed = true; changed;) {
            changed = false;
            for (int y = 1; y < height - 1; ++y)
                for (int x = 1; x < width - 1; ++x) {
                    int code = At(x, y);
                    for (int k = 0; k < 8; ++k)
                        code |= At(x + ring[k][0], y + ring[k][1]) << (k + 1);
                    changed = changed || table[std::size_t(code)] != At(x, y);
                    At(x, y) = table[std::size_t(code)];
                }
        }
    }
    // Components of the pixels equal to `value`, 8-connected or 4-connected.
    int Components(int value, bool eight)
    {
        std::vector<int> seen(pixels.size(), 0);
        int count = 0;
        for (int start = 0; start < width * height; ++start) {
            if (pixels[std::size_t(start)] != value || seen[std::size_t(start)])
                continue;
            ++count;
            std::vector<int> stack{start};
            seen[std::size_t(start)] = 1;
            while (!stack.empty()) {
                const int p = stack.back();
                stack.pop_back();
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx) {
                        const int x = p % width + dx, y = p / width + dy;
                        if ((!eight && dx != 0 && dy != 0) || x < 0 || y < 0 || x >= width || y >= height)
                            continue;
                        const int q = y * width + x;
                        if (pixels[std::size_t(q)] == value && !seen[std::size_t(q)]) {
                            seen[std::size_t(q)] = 1;
                            stack.push_back(q);
                        }
                    }
            }
        }
        return count;
    }
};

TEST(NgbLUTs, ThinningTablesKeepTheTopologyWhenRunToTheEnd)
{
    InChildProcess([] {
        StartBasic();
        Picture solid({"#####", "#####", "#####", "#####"});
        solid.RunUntilStable(NgbLUT::New(pnlCentroid, pngSquare8)->Table());
        EXPECT_EQ(solid.Count(), 1);

        Picture ring({"#####", "#####", "##.##", "#####", "#####"});
        ring.RunUntilStable(NgbLUT::New(pnlCentroid, pngSquare8)->Table());
        EXPECT_EQ(ring.Components(1, true), 1);
        EXPECT_EQ(ring.Components(0, false), 2) << "the hole must stay enclosed";

        Picture bar({"#########", "#########", "#########"});
        bar.RunUntilStable(NgbLUT::New(pnlSkeleton1, pngSquare8)->Table());
        EXPECT_EQ(bar.Components(1, true), 1);
        EXPECT_GE(bar.Count(), 5) << "end points keep the branches";
        for (int y = 0; y + 1 < bar.height; ++y)
            for (int x = 0; x + 1 < bar.width; ++x)
                EXPECT_LT(bar.At(x, y) + bar.At(x + 1, y) + bar.At(x, y + 1) + bar.At(x + 1, y + 1), 4)
                    << "thick at " << x << ", " << y;

        // Pruning eats a tree to nothing; homotopic pruning leaves one point.
        const std::initializer_list<const char*> tree = {"#...#", ".#.#.", "..#..", "..#..", "..#.."};
        Picture pruned(tree), homotopic(tree);
        pruned.RunUntilStable(NgbLUT::New(pnlPruning, pngSquare8)->Table());
        homotopic.RunUntilStable(NgbLUT::New(pnlHomotopicPruning, pngSquare8)->Table());
        EXPECT_EQ(pruned.Count(), 0);
        EXPECT_EQ(homotopic.Count(), 1);
    });
}

TEST(NgbLUTs, TextualPatternsOnAGraph)
{
    InChildProcess([] {
        StartBasic();
        Ref<INgbGraph> four = NgbGraph::New(pngSquare4, Axes::aXY);
        // A point with its east neighbour set, or with no neighbour at all.
        Ref<System::Collections::IStringCollection> patterns(new CStrings({L"1 1xxx", L"1 0000"}));
        Ref<INgbLUT> table = NgbLUT::New(patterns, four);
        ASSERT_EQ(table->Size(), 32);
        EXPECT_EQ(table->Value(0b00011), 1);
        EXPECT_EQ(table->Value(0b11111), 1);
        EXPECT_EQ(table->Value(0b00001), 1);
        EXPECT_EQ(table->Value(0b00101), 0);
        EXPECT_EQ(table->Value(0b00010), 0);
        const std::vector<unsigned char> entries = table->Table();
        EXPECT_EQ(std::accumulate(entries.begin(), entries.end(), 0), 9);

        Ref<System::Collections::IStringCollection> bad(new CStrings({L"1 1x2x"}));
        EXPECT_EQ(RaisedMessage([&] { NgbLUT::New(bad, four); }),
                  L"Pattern '1 1x2x' of a look-up table must have 5 characters of '0', '1' and 'x'");
    });
}

} // namespace Quilon_::Tests::NeighbourhoodTests
