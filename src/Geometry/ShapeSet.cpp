#include "Quilon_/Geometry/ShapeSet.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IShapeCollection, L"Quilon_::Geometry::IShapeCollection",
                             System::Collections::Template::ICollection<IShapeND>)
QUILON_DEFINE_INTERFACE_TYPE(IShapeSet, L"Quilon_::Geometry::IShapeSet", IShapeCollection)
QUILON_DEFINE_INTERFACE_TYPE(IShapeSetInternal, L"Quilon_::Geometry::IShapeSetInternal", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IShapeSetCollection, L"Quilon_::Geometry::IShapeSetCollection",
                             System::Collections::Template::ICollection<IShapeSet>)

ShapeCollection::Factory ShapeCollection::New;
ShapeSet::Factory ShapeSet::New;
ShapeSetCollection::Factory ShapeSetCollection::New;

} // namespace Quilon_::Geometry
