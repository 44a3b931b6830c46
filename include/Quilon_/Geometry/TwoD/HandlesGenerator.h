// Generators of handles: which handles a shape shows, and how dragging one
// reshapes the shape. Three kinds are made by the loaded libraries: the
// eight handles of a bounding box, the handles of an ellipse's axes, and
// one handle per point of a point list.
//
//   Ref<Geometry::TwoD::IHandlesGenerator> g = Geometry::TwoD::BoundingBoxHandlesGenerator::New();
//   Ref<Geometry::TwoD::IHandleCollection> handles = g->Generate(shape);
//   g->Apply(shape, handles->Item(2), mouse);   // drags the corner
#pragma once

#include "Quilon_/Geometry/TwoD/HandleCollection.h"
#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IHandlesGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IHandlesGenerator)
public:
    virtual System::Ref<IHandleCollection> Generate(System::Ref<IShape> shape) = 0;
    // Reshapes `shape` as if `handle` had been dragged to `position`.
    virtual void Apply(System::Ref<IShape> shape, const Handle& handle,
                       const Drawing::Point<float>& position) = 0;
};

class QUILON_API IBoundingBoxHandlesGenerator : public virtual IHandlesGenerator {
    QUILON_INTERFACE(IBoundingBoxHandlesGenerator)
};

class QUILON_API IEllipseHandlesGenerator : public virtual IHandlesGenerator {
    QUILON_INTERFACE(IEllipseHandlesGenerator)
};

class QUILON_API IPolyPointsHandlesGenerator : public virtual IHandlesGenerator {
    QUILON_INTERFACE(IPolyPointsHandlesGenerator)
};

namespace BoundingBoxHandlesGenerator {
using Factory = System::Functions::Template::Factory<System::Ref<IBoundingBoxHandlesGenerator>()>;
extern QUILON_API Factory New;
} // namespace BoundingBoxHandlesGenerator

namespace EllipseHandlesGenerator {
using Factory = System::Functions::Template::Factory<System::Ref<IEllipseHandlesGenerator>()>;
extern QUILON_API Factory New;
} // namespace EllipseHandlesGenerator

namespace PolyPointsHandlesGenerator {
using Factory = System::Functions::Template::Factory<System::Ref<IPolyPointsHandlesGenerator>()>;
extern QUILON_API Factory New;
} // namespace PolyPointsHandlesGenerator

} // namespace Quilon_::Geometry::TwoD
