// What the reference object-set measuring operators share: the shapes of a
// spatial attribute as masks, in the order of the set's objects, and the
// columns of results written into the set at the end, so that a failing
// measurement leaves the set unchanged.
//
//   MeasuredShapes shapes = MeasuredShapes::Of(attribute);      // or ::Of(set)
//   std::vector<ResultColumn> columns = ...;                    // one per measurement
//   WriteColumns(*shapes.set, shapes.keys, columns);
#pragma once

#include "Geometry/TwoD/BitmapShape.h"

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"

#include <deque>
#include <string>
#include <vector>

namespace Quilon_::Basic::ObjectSets::Operators {

using Basic::Geometry::BinaryMask;

struct MeasuredShapes {
    System::Ref<Quilon_::ObjectSets::IObjectSet> set;
    System::Ref<Quilon_::ObjectSets::ISpatialAttribute> attribute;
    int dimension = 2;
    // The objects that have a shape, in the set's order, and their masks.
    std::vector<Quilon_::ObjectSets::Key> keys;
    std::vector<const BinaryMask*> masks;

    // Raises "Attribute '%1%' belongs to no object set" for a detached
    // attribute.
    static MeasuredShapes Of(System::Ref<Quilon_::ObjectSets::IAttribute> attribute);
    // The set's attribute "Shape", or else its first spatial attribute;
    // raises "Object set has no spatial attribute" when there is none.
    static MeasuredShapes Of(System::Ref<Quilon_::ObjectSets::IObjectSet> set);

    MeasuredShapes() = default;
    // Moving keeps the copies where the masks point; copying would not.
    MeasuredShapes(MeasuredShapes&&) = default;
    MeasuredShapes(const MeasuredShapes&) = delete;
    MeasuredShapes& operator=(const MeasuredShapes&) = delete;

private:
    // Masks read from shapes of other libraries.
    std::deque<BinaryMask> m_copies;
};

// One result attribute: its name, whether it holds int32 (else the
// attribute kind `kind`), and a value per measured object.
struct ResultColumn {
    enum Kind { int32Cells, floatCells, doubleCells };
    std::wstring name;
    Kind kind = floatCells;
    std::vector<double> values;
    // Objects whose value is not set (no samples to measure).
    std::vector<bool> unset;
};

// "<operator>.<measurement>" when the library-wide setting asks for
// prefixed measurement attributes, else the measurement's name.
std::wstring MeasurementAttributeName(const wchar_t* operatorName, const wchar_t* measurement);

// Replaces any attribute of the same name by a new one holding the values.
void WriteColumns(Quilon_::ObjectSets::IObjectSet& set, const std::vector<Quilon_::ObjectSets::Key>& keys,
                  const std::vector<ResultColumn>& columns);

} // namespace Quilon_::Basic::ObjectSets::Operators
