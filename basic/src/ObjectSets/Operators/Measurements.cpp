// The reference StandardShapeMeasurements of ObjectSets::Measurements, and
// the plumbing the measuring operators share (Measurements.h).
//
// Definitions, in pixels (voxels for 3-D shapes):
// - Area: the number of pixels (int32).
// - Perimeter: the crack length, the number of pixel edges between the
//   object and the rest of the plane (holes included); for a 3-D shape the
//   number of voxel faces on its surface. A square of n x n pixels has 4n.
// - CentroidX, CentroidY, CentroidZ: the mean of the pixel centres.
// - BoundingBoxLeft, Top, Front: the smallest x, y, z of a pixel (int32);
//   BoundingBoxWidth, Height, Depth: the number of pixel columns, rows and
//   planes the object spans (int32), so a single pixel is 1 wide.
// - EquivalentDiameter: the diameter of the disk of the same area (of the
//   ball of the same volume for 3-D shapes).
// - Elongation: sqrt(largest / smallest eigenvalue) of the second-order
//   central moments, each pixel counted as a unit square (a unit cube), so
//   that it is 1 for a single pixel and n for a 1 x n line.
// An empty selector list measures all of them; for 2-D shapes "all" leaves
// out the Z measurements, which stay available when asked for by name.
#include "ObjectSets/Operators/Measurements.h"

#include "ObjectSets/Attributes.h"

#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numbers>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace QOS = Quilon_::ObjectSets;

// ---- Shared plumbing ---------------------------------------------------------

MeasuredShapes MeasuredShapes::Of(System::Ref<QOS::IAttribute> attribute)
{
    System::Pointer<QOS::IObjectSet, 0> owner = attribute->ObjectSet();
    if (!owner)
        QUILON_RAISE(L"Attribute '%1%' belongs to no object set", attribute->Name().Value());
    MeasuredShapes shapes;
    shapes.set = owner;
    shapes.attribute = System::Pointer<QOS::ISpatialAttribute, 1>(attribute);
    shapes.dimension = int(shapes.attribute->Dimension());
    System::Ref<QOS::IObjectDictionary> objects = shapes.set->Objects();
    const std::int64_t count = objects->Count();
    for (std::int64_t index = 0; index < count; ++index) {
        const QOS::Key key = objects->KeyAt(index);
        System::Pointer<Quilon_::Geometry::IShapeND, 0> shape = shapes.attribute->ShapeValue(key);
        if (!shape)
            continue;
        const BinaryMask* mask = Basic::Geometry::MaskOf(shape.Get());
        if (!mask)
            mask = &shapes.m_copies.emplace_back(Basic::Geometry::MaskOfShape(shape));
        shapes.keys.push_back(key);
        shapes.masks.push_back(mask);
    }
    return shapes;
}

MeasuredShapes MeasuredShapes::Of(System::Ref<QOS::IObjectSet> set)
{
    System::Ref<QOS::IAttributeDictionary> attributes = set->Attributes();
    if (System::Pointer<QOS::IAttribute, 0> named = attributes->Find(L"Shape"))
        if (System::Pointer<QOS::ISpatialAttribute, 0>(named))
            return Of(System::Ref<QOS::IAttribute>(named));
    for (std::int64_t index = 0; index < attributes->Count(); ++index) {
        System::Ref<QOS::IAttribute> attribute = attributes->ItemAt(index);
        if (System::Pointer<QOS::ISpatialAttribute, 0>(attribute))
            return Of(attribute);
    }
    QUILON_RAISE(L"Object set has no spatial attribute");
}

std::wstring MeasurementAttributeName(const wchar_t* operatorName, const wchar_t* measurement)
{
    if (QOS::Globals::PrefixMeasurementAttributes())
        return std::wstring(operatorName) + L"." + measurement;
    return measurement;
}

namespace {

const System::Type& DataTypeOfColumn(ResultColumn::Kind kind)
{
    switch (kind) {
    case ResultColumn::int32Cells:
        return QOS::DataTypeOf<std::int32_t>();
    case ResultColumn::floatCells:
        return QOS::DataTypeOf<float>();
    case ResultColumn::doubleCells:
        break;
    }
    return QOS::DataTypeOf<double>();
}

// A column of this library takes all its cells in one call; false for a
// column made by another library's factory, which gets them one by one.
bool WriteColumnAtOnce(QOS::IObjectSet& set, const std::vector<QOS::Key>& keys, const ResultColumn& column)
{
    System::Ref<QOS::IAttribute> attribute = set.AddAttribute(column.name, DataTypeOfColumn(column.kind));
    auto* numbers = dynamic_cast<NumberColumnHolder*>(attribute.Get());
    if (!numbers) {
        set.RemoveAttribute(column.name);
        return false;
    }
    if (column.kind != ResultColumn::int32Cells) {
        numbers->StoreNumbers(keys, column.values, column.unset);
        return true;
    }
    std::vector<double> rounded;
    rounded.reserve(column.values.size());
    for (const double value : column.values)
        rounded.push_back(double(std::int32_t(std::llround(value))));
    numbers->StoreNumbers(keys, rounded, column.unset);
    return true;
}

} // namespace

void WriteColumns(QOS::IObjectSet& set, const std::vector<QOS::Key>& keys,
                  const std::vector<ResultColumn>& columns)
{
    for (const ResultColumn& column : columns) {
        set.RemoveAttribute(column.name);
        if (WriteColumnAtOnce(set, keys, column))
            continue;
        switch (column.kind) {
        case ResultColumn::int32Cells: {
            System::Pointer<QOS::IInt32Attribute, 1> cells =
                set.AddAttribute(column.name, QOS::DataTypeOf<std::int32_t>());
            for (std::size_t k = 0; k < keys.size(); ++k)
                if (column.unset.empty() || !column.unset[k])
                    cells->SetInt32Value(keys[k], std::int32_t(std::llround(column.values[k])));
            break;
        }
        case ResultColumn::floatCells: {
            System::Pointer<QOS::IFloatAttribute, 1> cells =
                set.AddAttribute(column.name, QOS::DataTypeOf<float>());
            for (std::size_t k = 0; k < keys.size(); ++k)
                if (column.unset.empty() || !column.unset[k])
                    cells->SetFloatValue(keys[k], float(column.values[k]));
            break;
        }
        case ResultColumn::doubleCells: {
            System::Pointer<QOS::IScalarAttribute, 1> cells =
                set.AddAttribute(column.name, QOS::DataTypeOf<double>());
            for (std::size_t k = 0; k < keys.size(); ++k)
                if (column.unset.empty() || !column.unset[k])
                    cells->SetScalarValue(keys[k], column.values[k]);
            break;
        }
        }
    }
}

// ---- StandardShapeMeasurements -------------------------------------------------

namespace {

namespace QM = Quilon_::ObjectSets::Measurements;

struct ShapeMeasurementInfo {
    QM::StandardShapeMeasurementEnum which;
    const wchar_t* name;
    ResultColumn::Kind kind;
    bool volumeOnly;
};

constexpr ShapeMeasurementInfo shapeMeasurementTable[] = {
    {QM::ssmArea, L"Area", ResultColumn::int32Cells, false},
    {QM::ssmPerimeter, L"Perimeter", ResultColumn::floatCells, false},
    {QM::ssmCentroidX, L"CentroidX", ResultColumn::floatCells, false},
    {QM::ssmCentroidY, L"CentroidY", ResultColumn::floatCells, false},
    {QM::ssmCentroidZ, L"CentroidZ", ResultColumn::floatCells, true},
    {QM::ssmBoundingBoxLeft, L"BoundingBoxLeft", ResultColumn::int32Cells, false},
    {QM::ssmBoundingBoxTop, L"BoundingBoxTop", ResultColumn::int32Cells, false},
    {QM::ssmBoundingBoxFront, L"BoundingBoxFront", ResultColumn::int32Cells, true},
    {QM::ssmBoundingBoxWidth, L"BoundingBoxWidth", ResultColumn::int32Cells, false},
    {QM::ssmBoundingBoxHeight, L"BoundingBoxHeight", ResultColumn::int32Cells, false},
    {QM::ssmBoundingBoxDepth, L"BoundingBoxDepth", ResultColumn::int32Cells, true},
    {QM::ssmEquivalentDiameter, L"EquivalentDiameter", ResultColumn::floatCells, false},
    {QM::ssmElongation, L"Elongation", ResultColumn::floatCells, false},
};

const ShapeMeasurementInfo& ShapeMeasurementInfoOf(QM::StandardShapeMeasurementEnum which)
{
    for (const ShapeMeasurementInfo& info : shapeMeasurementTable)
        if (info.which == which)
            return info;
    QUILON_RAISE(L"Unknown shape measurement: %1%", static_cast<std::int64_t>(which));
}

// The eigenvalues of a symmetric 3x3 matrix, smallest and largest.
std::pair<double, double> ExtremeEigenvalues(double a, double b, double c, double d, double e, double f)
{
    // | a d e |
    // | d b f |
    // | e f c |
    const double p1 = d * d + e * e + f * f;
    if (p1 <= 1e-300)
        return {std::min({a, b, c}), std::max({a, b, c})};
    const double q = (a + b + c) / 3;
    const double p2 = (a - q) * (a - q) + (b - q) * (b - q) + (c - q) * (c - q) + 2 * p1;
    const double p = std::sqrt(p2 / 6);
    const double ba = (a - q) / p, bb = (b - q) / p, bc = (c - q) / p, bd = d / p, be = e / p, bf = f / p;
    const double r = std::clamp(
        (ba * (bb * bc - bf * bf) - bd * (bd * bc - bf * be) + be * (bd * bf - bb * be)) / 2, -1.0, 1.0);
    const double phi = std::acos(r) / 3;
    const double largest = q + 2 * p * std::cos(phi);
    const double smallest = q + 2 * p * std::cos(phi + 2 * std::numbers::pi / 3);
    return {smallest, largest};
}

// The sums of one row of a mask: set pixels, their x and x^2, the first
// and last set x, the runs (two faces along X each), and the set pixels
// whose neighbour above or below (in front or behind) is unset, a missing
// row counting as unset.
struct MaskRowSums {
    std::int64_t count = 0, x = 0, xx = 0, runs = 0, open = 0, openInDepth = 0;
    std::int64_t first = 0, last = -1;
};

// Eight mask bytes as one word, byte i of the row in bits 8i to 8i + 7;
// bytes past the row's end read as 0.
std::uint64_t MaskWord(const std::uint8_t* bytes, std::int64_t left)
{
    std::uint64_t word = 0;
    if (left >= 8) {
        std::memcpy(&word, bytes, 8);
        return word;
    }
    for (std::int64_t i = 0; i < left; ++i)
        word |= std::uint64_t(bytes[i]) << (8 * i);
    return word;
}

// A mask byte is 0 or 1, so a word of eight is summed by multiplication:
// the top byte of word * K collects sum(b_i * k_(7-i)), and no lower byte
// carries into it (each partial sum stays under 256).
constexpr std::uint64_t maskIndexWeights = 0x0001020304050607ull;  // k_(7-i) = i
constexpr std::uint64_t maskSquareWeights = 0x0001040910192431ull; // k_(7-i) = i^2
constexpr std::uint64_t maskLowBits = 0x0101010101010101ull;

// The set bytes of a word of 0/1 bytes: the top byte of word * 0x0101...
// sums them, without the population-count instruction that the baseline
// instruction set lacks.
std::int64_t SetMaskBytes(std::uint64_t word)
{
    return std::int64_t((word * maskLowBits) >> 56);
}

MaskRowSums SumMaskRow(const std::uint8_t* row, const std::uint8_t* above, const std::uint8_t* below,
                       const std::uint8_t* front, const std::uint8_t* back, std::int64_t width)
{
    MaskRowSums r;
    std::uint64_t carry = 0; // the last byte of the previous word
    for (std::int64_t x0 = 0; x0 < width; x0 += 8) {
        const std::int64_t left = width - x0;
        const std::uint64_t word = MaskWord(row + x0, left);
        if (word == 0) {
            carry = 0;
            continue;
        }
        const std::int64_t n = SetMaskBytes(word);
        const std::int64_t s1 = std::int64_t((word * maskIndexWeights) >> 56);
        const std::int64_t s2 = std::int64_t((word * maskSquareWeights) >> 56);
        r.count += n;
        r.x += x0 * n + s1;
        r.xx += x0 * x0 * n + 2 * x0 * s1 + s2;
        r.runs += SetMaskBytes(word & ~((word << 8) | carry));
        carry = word >> 56;
        auto open = [&](const std::uint8_t* other) {
            return other ? SetMaskBytes(word & ~MaskWord(other + x0, left)) : n;
        };
        r.open += open(above) + open(below);
        r.openInDepth += open(front) + open(back);
        if (r.last < 0)
            r.first = x0 + std::countr_zero(word) / 8;
        r.last = x0 + (63 - std::countl_zero(word)) / 8;
    }
    return r;
}

// The moments, box and faces of one mask, in one pass over its rows. The
// sums over a row are integers, taken without a branch per pixel, and
// folded into the moments once per row; every sum is exact, so the order
// of summation does not show in the results.
struct ShapeSums {
    std::int64_t count = 0;
    Basic::Geometry::Triple low{}, high{};
    double sx = 0, sy = 0, sz = 0, sxx = 0, syy = 0, szz = 0, sxy = 0, sxz = 0, syz = 0;
    // Pixel faces between the shape and the rest, along X and Y, and along Z.
    std::int64_t planeFaces = 0, depthFaces = 0;

    explicit ShapeSums(const BinaryMask& mask)
    {
        const std::int64_t width = mask.size[0], height = mask.size[1], depth = mask.size[2];
        const std::uint8_t* bits = mask.bits.data();
        std::int64_t lowX = width, highX = -1;
        for (std::int64_t z = 0; z < depth; ++z)
            for (std::int64_t y = 0; y < height; ++y) {
                const std::uint8_t* row = bits + (z * height + y) * width;
                const std::uint8_t* above = y > 0 ? row - width : nullptr;
                const std::uint8_t* below = y + 1 < height ? row + width : nullptr;
                const std::uint8_t* front = z > 0 ? row - height * width : nullptr;
                const std::uint8_t* back = z + 1 < depth ? row + height * width : nullptr;
                const MaskRowSums r = SumMaskRow(row, above, below, front, back, width);
                if (r.count == 0)
                    continue;
                const double fy = double(y), fz = double(z), n = double(r.count), x1 = double(r.x),
                             x2 = double(r.xx);
                if (count == 0) {
                    low[1] = high[1] = y;
                    low[2] = z;
                }
                high[1] = std::max(high[1], y);
                low[1] = std::min(low[1], y);
                high[2] = z;
                lowX = std::min(lowX, r.first);
                highX = std::max(highX, r.last);
                count += r.count;
                sx += x1, sy += n * fy, sz += n * fz;
                sxx += x2, syy += n * fy * fy, szz += n * fz * fz;
                sxy += fy * x1, sxz += fz * x1, syz += n * fy * fz;
                planeFaces += 2 * r.runs + r.open;
                depthFaces += r.openInDepth;
            }
        low[0] = lowX;
        high[0] = highX;
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] += mask.origin[axis];
            high[axis] += mask.origin[axis];
        }
    }

    // Faces of the crack length (2-D) or of the surface (3-D).
    std::int64_t Faces(int dimension) const { return dimension == 3 ? planeFaces + depthFaces : planeFaces; }

    double Elongation(int dimension) const
    {
        const double n = double(count);
        const double mx = sx / n, my = sy / n, mz = sz / n;
        // A pixel spreads over a unit square: 1/12 on each axis.
        const double cxx = sxx / n - mx * mx + 1.0 / 12, cyy = syy / n - my * my + 1.0 / 12;
        const double cxy = sxy / n - mx * my;
        if (dimension == 2) {
            const double mean = (cxx + cyy) / 2,
                         spread = std::sqrt((cxx - cyy) * (cxx - cyy) / 4 + cxy * cxy);
            return std::sqrt((mean + spread) / (mean - spread));
        }
        const double czz = szz / n - mz * mz + 1.0 / 12;
        const auto [smallest, largest] =
            ExtremeEigenvalues(cxx, cyy, czz, cxy, sxz / n - mx * mz, syz / n - my * mz);
        return std::sqrt(largest / smallest);
    }
};

double ShapeMeasurement(QM::StandardShapeMeasurementEnum which, const ShapeSums& sums, const BinaryMask& mask,
                        int dimension)
{
    const double n = double(sums.count);
    switch (which) {
    case QM::ssmArea:
        return n;
    case QM::ssmPerimeter:
        return double(sums.Faces(dimension));
    case QM::ssmCentroidX:
        return double(mask.origin[0]) + sums.sx / n;
    case QM::ssmCentroidY:
        return double(mask.origin[1]) + sums.sy / n;
    case QM::ssmCentroidZ:
        return double(mask.origin[2]) + sums.sz / n;
    case QM::ssmBoundingBoxLeft:
        return double(sums.low[0]);
    case QM::ssmBoundingBoxTop:
        return double(sums.low[1]);
    case QM::ssmBoundingBoxFront:
        return double(sums.low[2]);
    case QM::ssmBoundingBoxWidth:
        return double(sums.high[0] - sums.low[0] + 1);
    case QM::ssmBoundingBoxHeight:
        return double(sums.high[1] - sums.low[1] + 1);
    case QM::ssmBoundingBoxDepth:
        return double(sums.high[2] - sums.low[2] + 1);
    case QM::ssmEquivalentDiameter:
        return dimension == 3 ? std::cbrt(6 * n / std::numbers::pi) : 2 * std::sqrt(n / std::numbers::pi);
    case QM::ssmElongation:
        return sums.Elongation(dimension);
    }
    return 0.0;
}

void MeasureShapes(MeasuredShapes shapes, const std::vector<QM::StandardShapeMeasurementEnum>& selectors)
{
    std::vector<QM::StandardShapeMeasurementEnum> chosen = selectors;
    if (chosen.empty())
        for (const ShapeMeasurementInfo& info : shapeMeasurementTable)
            if (shapes.dimension == 3 || !info.volumeOnly)
                chosen.push_back(info.which);
    std::vector<ResultColumn> columns;
    for (QM::StandardShapeMeasurementEnum which : chosen) {
        const ShapeMeasurementInfo& info = ShapeMeasurementInfoOf(which);
        ResultColumn column;
        column.name = MeasurementAttributeName(L"StandardShapeMeasurements", info.name);
        column.kind = info.kind;
        column.values.reserve(shapes.keys.size());
        column.unset.reserve(shapes.keys.size());
        columns.push_back(std::move(column));
    }
    for (const BinaryMask* mask : shapes.masks) {
        const ShapeSums sums(*mask);
        for (std::size_t c = 0; c < chosen.size(); ++c) {
            columns[c].unset.push_back(sums.count == 0);
            columns[c].values.push_back(
                sums.count ? ShapeMeasurement(chosen[c], sums, *mask, shapes.dimension) : 0.0);
        }
    }
    WriteColumns(*shapes.set, shapes.keys, columns);
}

void MeasureAttributeShapes(System::Ref<QOS::IAttribute> attribute,
                            const std::vector<QM::StandardShapeMeasurementEnum>& selectors)
{
    MeasureShapes(MeasuredShapes::Of(attribute), selectors);
}

void MeasureSetShapes(System::Ref<QOS::IObjectSet> set,
                      const std::vector<QM::StandardShapeMeasurementEnum>& selectors)
{
    MeasureShapes(MeasuredShapes::Of(set), selectors);
}

void RegisterShapeMeasurements()
{
    const System::LIString name(L"Reference shape measurements");
    QM::Functions::StandardShapeMeasurements.Overload<0>().Register(name, &MeasureAttributeShapes);
    QM::Functions::StandardShapeMeasurements.Overload<1>().Register(name, &MeasureSetShapes);
}

const System::Template::Initializer<::Library> shapeMeasurementsRegistration(&RegisterShapeMeasurements,
                                                                             nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
