#include "Quilon_/Geometry/Shape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IShapeND, L"Quilon_::Geometry::IShapeND", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ISizeableND, L"Quilon_::Geometry::ISizeableND", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRunsProvider, L"Quilon_::Geometry::IRunsProvider", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapShapeConvertible, L"Quilon_::Geometry::IBitmapShapeConvertible",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapShapeND, L"Quilon_::Geometry::IBitmapShapeND", IShapeND, ISizeableND)
QUILON_DEFINE_INTERFACE_TYPE(IPointFND, L"Quilon_::Geometry::IPointFND", IShapeND)
QUILON_DEFINE_INTERFACE_TYPE(ILineFND, L"Quilon_::Geometry::ILineFND", IShapeND, ISizeableND)
QUILON_DEFINE_INTERFACE_TYPE(IVectorFND, L"Quilon_::Geometry::IVectorFND", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IPointFNDSet, L"Quilon_::Geometry::IPointFNDSet",
                             System::Collections::Template::ICollection<IPointFND>)

} // namespace Quilon_::Geometry
