#include "Quilon_/Geometry/TwoD/Loops.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(ILoops, L"Quilon_::Geometry::TwoD::ILoops",
                             System::Collections::Template::ICollection<Drawing::IPointFCollection>)

Loops::Factory Loops::New;

} // namespace Quilon_::Geometry::TwoD
