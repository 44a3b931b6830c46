// The reference object generators (Labels, Clusters, Threshold) as callers
// meet them: small pictures worked out by hand, and the connected
// components of random images of odd sizes against a plain flood fill.
// Objects are compared through their bitmap shapes, so the keys, the
// raster order and the shapes' pixels are checked together.
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/ThreeD/BitmapShape.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"

#include "../Images/Operators/SampleImages.h"
#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <string>

namespace Quilon_::Tests::Labelling {

using namespace Quilon_::ObjectSets;
namespace Gen = Quilon_::ObjectSets::Bitmaps::Generation::Functions;
using Geometry::Axes;
using Geometry::PredefinedNgbGraphEnum;
using SetRef = System::Ref<IObjectSet>;

struct Extent3 {
    std::int64_t width, height, depth = 1;
    std::int64_t Count() const { return width * height * depth; }
};

// A picture: one string per row, '.' background, digits or '#' = 1 set;
// planes of a volume follow each other.
ImageRef Picture(const std::vector<std::string>& rows, Extent3 extent,
                 System::NumericTypeEnum type = System::ntUInt8)
{
    std::vector<double> values;
    for (const std::string& row : rows)
        for (char c : row)
            values.push_back(c == '.' ? 0.0 : c == '#' ? 1.0 : double(c - '0'));
    if (extent.depth > 1)
        return SampleImage(type, {extent.width, extent.height, extent.depth}, Axes::aXYZ, values);
    return SampleImage(type, {extent.width, extent.height}, Axes::aXY, values);
}

// The key of the object covering each pixel (0 for none), read back through
// the objects' bitmap shapes; -1 where two objects claim a pixel.
std::vector<std::int64_t> KeyMap(const SetRef& set, Extent3 extent)
{
    std::vector<std::int64_t> map(std::size_t(extent.Count()), 0);
    System::Pointer<ISpatialAttribute, 1> shapes = set->Attributes()->Find(L"Shape");
    System::Ref<IObjectDictionary> objects = set->Objects();
    for (std::int64_t index = 0; index < objects->Count(); ++index) {
        const Key key = objects->KeyAt(index);
        System::Pointer<Geometry::IShapeND, 1> shape = shapes->ShapeValue(key);
        System::Pointer<Geometry::TwoD::IBitmapShape, 0> flat = shape;
        System::Pointer<Geometry::ThreeD::IBitmapShape, 0> solid = shape;
        std::size_t i = 0;
        for (std::int64_t z = 0; z < extent.depth; ++z)
            for (std::int64_t y = 0; y < extent.height; ++y)
                for (std::int64_t x = 0; x < extent.width; ++x, ++i)
                    if (flat ? flat->Value(x, y) : solid->Value(x, y, z))
                        map[i] = map[i] ? -1 : key.Value();
    }
    return map;
}

std::vector<std::int64_t> Digits(const std::vector<std::string>& rows)
{
    std::vector<std::int64_t> map;
    for (const std::string& row : rows)
        for (char c : row)
            map.push_back(c == '.' ? 0 : c - '0');
    return map;
}

// Keys in raster order of each component's first pixel, by breadth-first
// search over the given offsets.
std::vector<std::int64_t> FloodFill(const std::vector<std::uint8_t>& set, Extent3 e,
                                    const std::vector<std::array<int, 3>>& offsets)
{
    std::vector<std::int64_t> labels(set.size(), 0);
    std::int64_t next = 0;
    for (std::size_t start = 0; start < set.size(); ++start) {
        if (!set[start] || labels[start])
            continue;
        labels[start] = ++next;
        std::deque<std::size_t> queue{start};
        while (!queue.empty()) {
            const std::int64_t at = std::int64_t(queue.front());
            queue.pop_front();
            const std::int64_t x = at % e.width, y = at / e.width % e.height, z = at / (e.width * e.height);
            for (const auto& o : offsets) {
                const std::int64_t nx = x + o[0], ny = y + o[1], nz = z + o[2];
                if (nx < 0 || ny < 0 || nz < 0 || nx >= e.width || ny >= e.height || nz >= e.depth)
                    continue;
                const auto n = std::size_t((nz * e.height + ny) * e.width + nx);
                if (set[n] && !labels[n]) {
                    labels[n] = next;
                    queue.push_back(n);
                }
            }
        }
    }
    return labels;
}

std::vector<std::array<int, 3>> OffsetsOf(PredefinedNgbGraphEnum graph)
{
    std::vector<std::array<int, 3>> offsets;
    for (int z = -1; z <= 1; ++z)
        for (int y = -1; y <= 1; ++y)
            for (int x = -1; x <= 1; ++x) {
                const int reach = std::abs(x) + std::abs(y) + std::abs(z);
                const bool planar = z == 0;
                if (reach == 0 || (graph == Geometry::pngSquare4 && (!planar || reach > 1)) ||
                    (graph == Geometry::pngSquare8 && !planar) || (graph == Geometry::pngCubic6 && reach > 1))
                    continue;
                offsets.push_back({x, y, z});
            }
    return offsets;
}

struct PictureCase {
    const char* what;
    std::vector<std::string> rows;
    Extent3 extent;
    PredefinedNgbGraphEnum graph;
    std::vector<std::string> expected; // keys as digits
};

TEST(Labelling, ClustersOfHandDrawnPicturesAreNumberedInRasterOrder)
{
    const std::vector<PictureCase> cases = {
        {"a ring is one object, its hole none",
         {".....", ".###.", ".#.#.", ".###.", "....."},
         {5, 5},
         Geometry::pngSquare4,
         {".....", ".111.", ".1.1.", ".111.", "....."}},
        {"squares touching at a corner: apart under 4-connectivity",
         {"##..", "##..", "..##", "..##"},
         {4, 4},
         Geometry::pngSquare4,
         {"11..", "11..", "..22", "..22"}},
        {"squares touching at a corner: one object under 8-connectivity",
         {"##..", "##..", "..##", "..##"},
         {4, 4},
         Geometry::pngSquare8,
         {"11..", "11..", "..11", "..11"}},
        {"single pixels and objects on every border",
         {"#...#", ".....", "..#..", ".....", "#...#"},
         {5, 5},
         Geometry::pngSquare8,
         {"1...2", ".....", "..3..", ".....", "4...5"}},
        {"a U joined only at its bottom keeps the key of its first pixel",
         {"#.#.#", "#.#.#", "###.#", "....#"},
         {5, 4},
         Geometry::pngSquare4,
         {"1.1.2", "1.1.2", "111.2", "....2"}},
        {"parallel diagonals stay apart under 8-connectivity",
         {"...#.#", "..#..#", ".#..#.", "#..#.."},
         {6, 4},
         Geometry::pngSquare8,
         {"...1.2", "..1..2", ".1..2.", "1..2.."}},
        {"three arms joined late are one object under 8-connectivity",
         {"#.#.#", "#.#.#", ".#.#."},
         {5, 3},
         Geometry::pngSquare8,
         {"1.1.1", "1.1.1", ".1.1."}},
        {"an all-background image has no objects",
         {"...", "..."},
         {3, 2},
         Geometry::pngSquare8,
         {"...", "..."}},
        {"a volume: voxels meeting at a corner across planes are apart under 6-connectivity",
         {"#.", "..", "..", ".#"},
         {2, 2, 2},
         Geometry::pngCubic6,
         {"1.", "..", "..", ".2"}},
        {"a volume: and together under 26-connectivity",
         {"#.", "..", "..", ".#"},
         {2, 2, 2},
         Geometry::pngCubic26,
         {"1.", "..", "..", ".1"}},
        {"a volume: a column through the planes is one object",
         {".#", "..", ".#", "#.", ".#", ".."},
         {2, 2, 3},
         Geometry::pngCubic6,
         {".1", "..", ".1", "2.", ".1", ".."}},
    };
    InChildProcess([&] {
        StartBasic();
        for (const PictureCase& c : cases) {
            SetRef set = ObjectSet::New();
            Gen::Clusters(Picture(c.rows, c.extent), set, c.graph);
            EXPECT_EQ(KeyMap(set, c.extent), Digits(c.expected)) << c.what;
        }
    });
}

TEST(Labelling, ThresholdAndLabelsSelectTheirObjects)
{
    InChildProcess([] {
        StartBasic();
        const Extent3 extent{5, 3};
        // Threshold keeps 3..6 inclusive, connected under 4-connectivity.
        SetRef set = ObjectSet::New();
        Gen::Threshold(Picture({"37.27", "6.9.4", "52.33"}, extent), set, Math::IntervalD::New(3.0, 6.0),
                       Geometry::pngSquare4);
        EXPECT_EQ(KeyMap(set, extent), Digits({"1....", "1...2", "1..22"}));

        // Labels: one object per value, key = value, apart or not; in key order.
        SetRef labels = ObjectSet::New();
        Gen::Labels(Picture({"7.3.7", ".....", "3...."}, extent, System::ntInt16), labels);
        EXPECT_EQ(KeyMap(labels, extent), Digits({"7.3.7", ".....", "3...."}));
        ASSERT_EQ(labels->Count(), 2);
        EXPECT_EQ(labels->Objects()->KeyAt(0), Key(3));
        EXPECT_EQ(labels->Objects()->KeyAt(1), Key(7));
    });
}

TEST(Labelling, AttributeFormFillsTheGivenAttributeAndAFailureLeavesTheOutput)
{
    InChildProcess([] {
        StartBasic();
        const Extent3 extent{4, 2};
        SetRef set = ObjectSet::New();
        System::Ref<IAttribute> blobs =
            set->AddAttribute(L"Blobs", DataTypeOf<Geometry::TwoD::IBitmapShape>());
        Gen::Clusters(Picture({"#..#", "#..."}, extent), blobs, Geometry::pngSquare8);
        ASSERT_EQ(set->Count(), 2);
        System::Pointer<ISpatialAttribute, 1> spatial = blobs;
        using Flat = System::Pointer<Geometry::TwoD::IShape, 1>;
        EXPECT_EQ(Flat(spatial->ShapeValue(Key(1)))->Area(), 2.0);
        EXPECT_EQ(Flat(spatial->ShapeValue(Key(2)))->Area(), 1.0);

        // Labels need integer samples: nothing of the earlier result changes.
        SetRef before = ObjectSet::New();
        Gen::Clusters(Picture({"#..#", "#..."}, extent), before, Geometry::pngSquare8);
        EXPECT_FALSE(RaisedMessage([&] {
                         Gen::Labels(Picture({"#..#", "#..."}, extent, System::ntFloat), before);
                     }).empty());
        EXPECT_EQ(before->Count(), 2);
        EXPECT_EQ(KeyMap(before, extent), Digits({"1..2", "1..."}));
    });
}

TEST(Labelling, ComponentsOfRandomImagesMatchAFloodFill)
{
    struct RandomCase {
        Extent3 extent;
        double density;
        PredefinedNgbGraphEnum graph;
    };
    // The last two have enough rows that the run buffer is sized from a
    // sample of them.
    const std::vector<RandomCase> cases = {
        {{31, 23}, 0.45, Geometry::pngSquare4}, {{31, 23}, 0.45, Geometry::pngSquare8},
        {{17, 9}, 0.7, Geometry::pngSquare4},   {{17, 9}, 0.3, Geometry::pngSquare8},
        {{1, 13}, 0.5, Geometry::pngSquare8},   {{13, 1}, 0.5, Geometry::pngSquare4},
        {{9, 7, 5}, 0.3, Geometry::pngCubic6},  {{9, 7, 5}, 0.2, Geometry::pngCubic26},
        {{23, 70}, 0.5, Geometry::pngSquare8},  {{7, 9, 8}, 0.4, Geometry::pngCubic26},
    };
    InChildProcess([&] {
        StartBasic();
        std::mt19937 random(15);
        for (const RandomCase& c : cases) {
            std::bernoulli_distribution coin(c.density);
            std::vector<std::uint8_t> set(std::size_t(c.extent.Count()));
            std::vector<double> samples;
            for (auto& s : set) {
                s = coin(random) ? 1 : 0;
                samples.push_back(s ? 200.0 : 0.0);
            }
            const ImageRef image =
                c.extent.depth > 1
                    ? SampleImage(System::ntUInt8, {c.extent.width, c.extent.height, c.extent.depth},
                                  Axes::aXYZ, samples)
                    : SampleImage(System::ntUInt8, {c.extent.width, c.extent.height}, Axes::aXY, samples);
            SetRef objects = ObjectSet::New();
            Gen::Clusters(image, objects, c.graph);
            const std::string what = std::to_string(c.extent.width) + "x" + std::to_string(c.extent.height) +
                                     "x" + std::to_string(c.extent.depth) + " graph " +
                                     std::to_string(int(c.graph));
            EXPECT_EQ(KeyMap(objects, c.extent), FloodFill(set, c.extent, OffsetsOf(c.graph))) << what;
            // The same neighbourhood given as a graph object labels alike.
            SetRef again = ObjectSet::New();
            Gen::Clusters(image, again,
                          Geometry::NgbGraph::New(c.graph, c.extent.depth > 1 ? Axes::aXYZ : Axes::aXY));
            EXPECT_EQ(again->Count(), objects->Count()) << what;
        }
    });
}

} // namespace Quilon_::Tests::Labelling
