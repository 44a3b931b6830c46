// Geometric transforms of the shapes of objects: affine maps, rotations,
// scalings and translations. An implementation library registers their
// implementations at start-up:
//
//   using namespace Quilon_::ObjectSets;
//   Geometry::Functions::Translate(cells, moved, Quilon_::Geometry::CoordinatesD::New(10.0, 0.0));
//   Geometry::Functions::Scale(cells, halved, 0.5);
//
// The set forms transform every spatial attribute of the set; the attribute
// forms resample bitmap shapes by the interpolation given.
#pragma once

#include "Quilon_/Images/Geometry/Functions.h"
#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::Math {
class IMatrixD;
} // namespace Quilon_::Math

namespace Quilon_::Geometry {
class ICoordinatesD;
class IRotation;
} // namespace Quilon_::Geometry

namespace Quilon_::ObjectSets::Geometry {

using namespace ObjectSets::Functions::Arguments;
using InterpolationTypeEnum = Images::Geometry::InterpolationEnum;
using Matrix = System::Ref<Math::IMatrixD>;
using Rotation = System::Ref<Quilon_::Geometry::IRotation>;
using Vector = System::Ref<Quilon_::Geometry::ICoordinatesD>;

// AffineMap.
class QUILON_API Function1
    : public Overloads<void(Set, Set, Matrix), void(Attribute, Attribute, Matrix, InterpolationTypeEnum)> {
public:
    using Overloads::Overloads;
};

// Rotate.
class QUILON_API Function2 : public Overloads<void(Set, Set, Rotation),
                                              void(Attribute, Attribute, Rotation, InterpolationTypeEnum)> {
public:
    using Overloads::Overloads;
};

// Scale: [0] a factor per axis; [1] one factor for all axes.
class QUILON_API Function3 : public Overloads<void(Set, Set, Vector), void(Set, Set, double),
                                              void(Attribute, Attribute, Vector, InterpolationTypeEnum)> {
public:
    using Overloads::Overloads;
};

// Translate.
class QUILON_API Function4 : public Overloads<void(Set, Set, Vector), void(Attribute, Attribute, Vector)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 AffineMap;
extern QUILON_API Function2 Rotate;
extern QUILON_API Function3 Scale;
extern QUILON_API Function4 Translate;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Geometry
