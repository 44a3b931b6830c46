#include "Quilon_/Geometry/TwoD/HandlesGenerator.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IHandlesGenerator, L"Quilon_::Geometry::TwoD::IHandlesGenerator",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBoundingBoxHandlesGenerator,
                             L"Quilon_::Geometry::TwoD::IBoundingBoxHandlesGenerator", IHandlesGenerator)
QUILON_DEFINE_INTERFACE_TYPE(IEllipseHandlesGenerator, L"Quilon_::Geometry::TwoD::IEllipseHandlesGenerator",
                             IHandlesGenerator)
QUILON_DEFINE_INTERFACE_TYPE(IPolyPointsHandlesGenerator,
                             L"Quilon_::Geometry::TwoD::IPolyPointsHandlesGenerator", IHandlesGenerator)

BoundingBoxHandlesGenerator::Factory BoundingBoxHandlesGenerator::New;
EllipseHandlesGenerator::Factory EllipseHandlesGenerator::New;
PolyPointsHandlesGenerator::Factory PolyPointsHandlesGenerator::New;

} // namespace Quilon_::Geometry::TwoD
