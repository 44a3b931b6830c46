// The reference measuring operators on objects: shape measurements and
// grey-value statistics worked out by hand on a small labelled picture,
// the naming of their attributes, and ToImage painting results back.
#include "Quilon_/Math/Interval.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/Utility/Functions.h"
#include "Quilon_/System/Any.h"

#include "../Images/Operators/SampleImages.h"
#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace Quilon_::Tests::ObjectMeasurements {

using namespace Quilon_::ObjectSets;
namespace Gen = Quilon_::ObjectSets::Bitmaps::Generation::Functions;
namespace M = Quilon_::ObjectSets::Measurements;
using Geometry::Axes;
using SetRef = System::Ref<IObjectSet>;

// Label 1: one pixel; 2: a 4 x 2 rectangle; 3: a 3 x 3 ring; 4: a 1 x 5 line.
const std::vector<std::string> labelRows = {
    "1.2222.4", //
    "..2222.4", //
    "333....4", //
    "3.3....4", //
    "333....4",
};

ImageRef LabelImage(const std::vector<std::string>& rows)
{
    std::vector<double> values;
    for (const std::string& row : rows)
        for (char c : row)
            values.push_back(c == '.' ? 0.0 : double(c - '0'));
    return SampleImage(System::ntUInt8, {std::int64_t(rows[0].size()), std::int64_t(rows.size())}, Axes::aXY,
                       values);
}

SetRef LabelledSet()
{
    SetRef set = ObjectSet::New();
    Gen::Labels(LabelImage(labelRows), set);
    return set;
}

double Cell(const SetRef& set, const std::wstring& attribute, std::int64_t key)
{
    System::Pointer<IAttribute, 0> found = set->Attributes()->Find(attribute);
    if (!found)
        return std::nan("");
    return System::Pointer<IScalarAttribute, 1>(found)->ScalarValue(Key(key));
}

struct Expected {
    const wchar_t* attribute;
    std::int64_t key;
    double value;
};

void ExpectCells(const SetRef& set, const std::vector<Expected>& expected)
{
    for (const Expected& e : expected)
        EXPECT_NEAR(Cell(set, e.attribute, e.key), e.value, 1e-4 * (1 + std::abs(e.value)))
            << System::ToAnsi(e.attribute) << " of object " << e.key;
}

const double unitDiameter = 2 / std::sqrt(std::numbers::pi); // of a one-pixel disk

TEST(ObjectMeasurements, StandardShapeMeasurementsOfHandDrawnShapes)
{
    InChildProcess([] {
        StartBasic();
        SetRef set = LabelledSet();
        M::Functions::StandardShapeMeasurements(set, std::vector<M::StandardShapeMeasurementEnum>{});
        ExpectCells(set,
                    {
                        {L"StandardShapeMeasurements.Area", 1, 1},
                        {L"StandardShapeMeasurements.Area", 2, 8},
                        {L"StandardShapeMeasurements.Area", 3, 8},
                        {L"StandardShapeMeasurements.Area", 4, 5},
                        // Crack length: the ring counts its hole's four edges.
                        {L"StandardShapeMeasurements.Perimeter", 1, 4},
                        {L"StandardShapeMeasurements.Perimeter", 2, 12},
                        {L"StandardShapeMeasurements.Perimeter", 3, 16},
                        {L"StandardShapeMeasurements.Perimeter", 4, 12},
                        {L"StandardShapeMeasurements.CentroidX", 2, 3.5},
                        {L"StandardShapeMeasurements.CentroidY", 2, 0.5},
                        {L"StandardShapeMeasurements.CentroidX", 3, 1},
                        {L"StandardShapeMeasurements.CentroidY", 3, 3},
                        {L"StandardShapeMeasurements.CentroidY", 4, 2},
                        {L"StandardShapeMeasurements.BoundingBoxLeft", 2, 2},
                        {L"StandardShapeMeasurements.BoundingBoxTop", 3, 2},
                        {L"StandardShapeMeasurements.BoundingBoxWidth", 1, 1},
                        {L"StandardShapeMeasurements.BoundingBoxWidth", 2, 4},
                        {L"StandardShapeMeasurements.BoundingBoxHeight", 2, 2},
                        {L"StandardShapeMeasurements.BoundingBoxHeight", 4, 5},
                        {L"StandardShapeMeasurements.EquivalentDiameter", 1, unitDiameter},
                        {L"StandardShapeMeasurements.EquivalentDiameter", 2, unitDiameter * std::sqrt(8.0)},
                        // Pixels count as unit squares: a line of n is n times as long as wide.
                        {L"StandardShapeMeasurements.Elongation", 1, 1},
                        {L"StandardShapeMeasurements.Elongation", 2, 2},
                        {L"StandardShapeMeasurements.Elongation", 3, 1},
                        {L"StandardShapeMeasurements.Elongation", 4, 5},
                    });
        // "All" on 2-D shapes leaves the Z measurements out.
        EXPECT_FALSE(set->Attributes()->Find(L"StandardShapeMeasurements.CentroidZ"));
        EXPECT_FALSE(set->Attributes()->Find(L"StandardShapeMeasurements.BoundingBoxDepth"));
    });
}

TEST(ObjectMeasurements, AVolumeIsMeasuredInVoxels)
{
    InChildProcess([] {
        StartBasic();
        // A 2 x 2 x 2 cube at (1, 0, 1) in a 3 x 2 x 3 volume.
        std::vector<double> values(18, 0.0);
        for (int z = 1; z < 3; ++z)
            for (int y = 0; y < 2; ++y)
                for (int x = 1; x < 3; ++x)
                    values[std::size_t((z * 2 + y) * 3 + x)] = 1;
        SetRef set = ObjectSet::New();
        Gen::Labels(SampleImage(System::ntUInt8, {3, 2, 3}, Axes::aXYZ, values), set);
        M::Functions::StandardShapeMeasurements(set, std::vector<M::StandardShapeMeasurementEnum>{});
        ExpectCells(
            set, {
                     {L"StandardShapeMeasurements.Area", 1, 8},
                     {L"StandardShapeMeasurements.Perimeter", 1, 24},
                     {L"StandardShapeMeasurements.CentroidX", 1, 1.5},
                     {L"StandardShapeMeasurements.CentroidZ", 1, 1.5},
                     {L"StandardShapeMeasurements.BoundingBoxFront", 1, 1},
                     {L"StandardShapeMeasurements.BoundingBoxDepth", 1, 2},
                     {L"StandardShapeMeasurements.EquivalentDiameter", 1, std::cbrt(48 / std::numbers::pi)},
                     {L"StandardShapeMeasurements.Elongation", 1, 1},
                 });
    });
}

// What the shape measurements must give, worked out pixel by pixel over a
// label image: every object is the pixels of one value.
struct BruteForceShape {
    double area = 0, faces = 0, sx = 0, sy = 0, sz = 0, sxx = 0, syy = 0, sxy = 0;
    std::int64_t low[3] = {1 << 30, 1 << 30, 1 << 30}, high[3] = {-1, -1, -1};
};

std::vector<BruteForceShape> MeasureByHand(const std::vector<double>& labels, const std::int64_t (&size)[3],
                                           int objects)
{
    std::vector<BruteForceShape> shapes(std::size_t(objects + 1));
    auto at = [&](std::int64_t x, std::int64_t y, std::int64_t z) {
        const bool inside = x >= 0 && y >= 0 && z >= 0 && x < size[0] && y < size[1] && z < size[2];
        return inside ? labels[std::size_t((z * size[1] + y) * size[0] + x)] : 0.0;
    };
    for (std::int64_t z = 0; z < size[2]; ++z)
        for (std::int64_t y = 0; y < size[1]; ++y)
            for (std::int64_t x = 0; x < size[0]; ++x) {
                const double label = at(x, y, z);
                if (label == 0)
                    continue;
                BruteForceShape& s = shapes[std::size_t(label)];
                const std::int64_t p[3] = {x, y, z};
                for (int axis = 0; axis < 3; ++axis) {
                    s.low[axis] = std::min(s.low[axis], p[axis]);
                    s.high[axis] = std::max(s.high[axis], p[axis]);
                }
                s.area += 1;
                s.sx += double(x), s.sy += double(y), s.sz += double(z);
                s.sxx += double(x * x), s.syy += double(y * y), s.sxy += double(x * y);
                s.faces += (at(x - 1, y, z) != label) + (at(x + 1, y, z) != label) +
                           (at(x, y - 1, z) != label) + (at(x, y + 1, z) != label);
                if (size[2] > 1)
                    s.faces += (at(x, y, z - 1) != label) + (at(x, y, z + 1) != label);
            }
    return shapes;
}

// Objects wider than a machine word, ragged, with holes and several runs
// per row: each label value is scattered over the whole picture, so every
// shape's mask spans it, and rows end at any offset within a word.
TEST(ObjectMeasurements, ScatteredShapesMatchAPixelByPixelCount)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            std::int64_t size[3];
            int objects;
        };
        for (const Case& c : {Case{{37, 11, 1}, 5}, Case{{9, 6, 5}, 3}, Case{{64, 3, 1}, 2}}) {
            std::vector<double> labels;
            unsigned state = 12345;
            for (std::int64_t i = 0; i < c.size[0] * c.size[1] * c.size[2]; ++i) {
                state = state * 1103515245u + 12345u;
                labels.push_back(double((state >> 16) % unsigned(c.objects + 1)));
            }
            const bool volume = c.size[2] > 1;
            const ImageRef image =
                volume ? SampleImage(System::ntUInt8, {c.size[0], c.size[1], c.size[2]}, Axes::aXYZ, labels)
                       : SampleImage(System::ntUInt8, {c.size[0], c.size[1]}, Axes::aXY, labels);
            SetRef set = ObjectSet::New();
            Gen::Labels(image, set);
            M::Functions::StandardShapeMeasurements(set, std::vector<M::StandardShapeMeasurementEnum>{});
            const std::vector<BruteForceShape> expected = MeasureByHand(labels, c.size, c.objects);
            for (int k = 1; k <= c.objects; ++k) {
                const BruteForceShape& e = expected[std::size_t(k)];
                const double n = e.area;
                std::vector<Expected> cells = {
                    {L"StandardShapeMeasurements.Area", k, n},
                    {L"StandardShapeMeasurements.Perimeter", k, e.faces},
                    {L"StandardShapeMeasurements.CentroidX", k, e.sx / n},
                    {L"StandardShapeMeasurements.CentroidY", k, e.sy / n},
                    {L"StandardShapeMeasurements.BoundingBoxLeft", k, double(e.low[0])},
                    {L"StandardShapeMeasurements.BoundingBoxTop", k, double(e.low[1])},
                    {L"StandardShapeMeasurements.BoundingBoxWidth", k, double(e.high[0] - e.low[0] + 1)},
                    {L"StandardShapeMeasurements.BoundingBoxHeight", k, double(e.high[1] - e.low[1] + 1)},
                };
                if (volume) {
                    cells.push_back({L"StandardShapeMeasurements.CentroidZ", k, e.sz / n});
                    cells.push_back({L"StandardShapeMeasurements.BoundingBoxFront", k, double(e.low[2])});
                    cells.push_back(
                        {L"StandardShapeMeasurements.BoundingBoxDepth", k, double(e.high[2] - e.low[2] + 1)});
                } else {
                    const double mx = e.sx / n, my = e.sy / n;
                    const double cxx = e.sxx / n - mx * mx + 1.0 / 12, cyy = e.syy / n - my * my + 1.0 / 12;
                    const double cxy = e.sxy / n - mx * my, mean = (cxx + cyy) / 2;
                    const double spread = std::sqrt((cxx - cyy) * (cxx - cyy) / 4 + cxy * cxy);
                    cells.push_back({L"StandardShapeMeasurements.Elongation", k,
                                     std::sqrt((mean + spread) / (mean - spread))});
                }
                SCOPED_TRACE(::testing::Message() << c.size[0] << " x " << c.size[1] << " x " << c.size[2]);
                ExpectCells(set, cells);
            }
        }
    });
}

TEST(ObjectMeasurements, SelectorsPrefixAndRepeatedRunsNameTheAttributes)
{
    InChildProcess([] {
        StartBasic();
        SetRef set = LabelledSet();
        const std::vector<M::StandardShapeMeasurementEnum> two = {M::ssmArea, M::ssmCentroidX};
        M::Functions::StandardShapeMeasurements(set, two);
        // Measuring again replaces the columns rather than failing on their names.
        M::Functions::StandardShapeMeasurements(set, two);
        EXPECT_EQ(set->Attributes()->Count(), 3); // Shape and the two measurements
        EXPECT_TRUE(set->Attributes()->Find(L"StandardShapeMeasurements.CentroidX"));

        Globals::SetPrefixMeasurementAttributes(false);
        System::Ref<IAttribute> shapes = set->Attributes()->Find(L"Shape");
        M::Functions::StandardShapeMeasurements(shapes,
                                                std::vector<M::StandardShapeMeasurementEnum>{M::ssmArea});
        ExpectCells(set, {{L"Area", 2, 8}, {L"Area", 4, 5}});
    });
}

TEST(ObjectMeasurements, StatisticsOfTheGreyValuesUnderEachObject)
{
    InChildProcess([] {
        StartBasic();
        // Grey value x + 10 y.
        std::vector<double> grey;
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 8; ++x)
                grey.push_back(x + 10.0 * y);
        SetRef set = LabelledSet();
        M::Functions::Statistics(set, SampleImage(System::ntUInt16, {8, 5}, Axes::aXY, grey),
                                 std::vector<M::StatisticsEnum>{}, 25.0, 0.0);
        ExpectCells(set, {
                             // The rectangle: 2..5 and 12..15.
                             {L"Statistics.Mean", 2, 8.5},
                             {L"Statistics.Minimum", 2, 2},
                             {L"Statistics.Maximum", 2, 15},
                             {L"Statistics.Sum", 2, 68},
                             {L"Statistics.StandardDeviation", 2, std::sqrt(26.25)},
                             {L"Statistics.Median", 2, 8.5},
                             {L"Statistics.Percentile", 2, 3.75},
                             // The line: 7, 17, ..., 47.
                             {L"Statistics.Mean", 4, 27},
                             {L"Statistics.StandardDeviation", 4, std::sqrt(200.0)},
                             {L"Statistics.Median", 4, 27},
                             {L"Statistics.Percentile", 4, 17},
                             {L"Statistics.Sum", 1, 0},
                         });
    });
}

TEST(ObjectMeasurements, ToImagePaintsValuesUnderTheShapes)
{
    InChildProcess([] {
        StartBasic();
        SetRef set = LabelledSet();
        M::Functions::StandardShapeMeasurements(set,
                                                std::vector<M::StandardShapeMeasurementEnum>{M::ssmArea});
        System::Ref<IAttribute> shapes = set->Attributes()->Find(L"Shape");
        System::Ref<IAttribute> area = set->Attributes()->Find(L"StandardShapeMeasurements.Area");
        area->RemoveValue(Key(3)); // an unset cell is not painted

        ImageRef painted = SampleImage(System::ntInt16, {8, 5}, Axes::aXY, std::vector<double>(40, 7.0));
        Utility::Functions::ToImage(shapes, painted, area);
        const std::vector<double> byArea = {1, 0, 8, 8, 8, 8, 0, 5, //
                                            0, 0, 8, 8, 8, 8, 0, 5, //
                                            0, 0, 0, 0, 0, 0, 0, 5, //
                                            0, 0, 0, 0, 0, 0, 0, 5, //
                                            0, 0, 0, 0, 0, 0, 0, 5};
        EXPECT_EQ(SamplesOf(painted), byArea);

        ImageRef constant = SampleImage(System::ntUInt8, {8, 5}, Axes::aXY, {});
        Utility::Functions::ToImage(shapes, constant, System::ToAny(300.0));
        const std::vector<double> saturated = SamplesOf(constant);
        EXPECT_EQ(saturated[0], 255);  // saturated to the sample type
        EXPECT_EQ(saturated[17], 255); // the ring
        EXPECT_EQ(saturated[25], 0);   // its hole
    });
}

} // namespace Quilon_::Tests::ObjectMeasurements
