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
#include <cmath>
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

void WriteColumns(QOS::IObjectSet& set, const std::vector<QOS::Key>& keys,
                  const std::vector<ResultColumn>& columns)
{
    for (const ResultColumn& column : columns) {
        set.RemoveAttribute(column.name);
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

// The moments and box of one mask, in one pass over its bytes.
struct ShapeSums {
    std::int64_t count = 0;
    Basic::Geometry::Triple low{}, high{};
    double sx = 0, sy = 0, sz = 0, sxx = 0, syy = 0, szz = 0, sxy = 0, sxz = 0, syz = 0;

    explicit ShapeSums(const BinaryMask& mask)
    {
        const std::uint8_t* bit = mask.bits.data();
        for (std::int64_t z = 0; z < mask.size[2]; ++z)
            for (std::int64_t y = 0; y < mask.size[1]; ++y)
                for (std::int64_t x = 0; x < mask.size[0]; ++x, ++bit) {
                    if (!*bit)
                        continue;
                    const Basic::Geometry::Triple p{x, y, z};
                    for (int axis = 0; axis < 3; ++axis) {
                        low[axis] = count ? std::min(low[axis], p[axis]) : p[axis];
                        high[axis] = count ? std::max(high[axis], p[axis]) : p[axis];
                    }
                    ++count;
                    const double fx = double(x), fy = double(y), fz = double(z);
                    sx += fx, sy += fy, sz += fz;
                    sxx += fx * fx, syy += fy * fy, szz += fz * fz;
                    sxy += fx * fy, sxz += fx * fz, syz += fy * fz;
                }
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] += mask.origin[axis];
            high[axis] += mask.origin[axis];
        }
    }

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
        return double(mask.FaceCount(dimension == 3));
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
