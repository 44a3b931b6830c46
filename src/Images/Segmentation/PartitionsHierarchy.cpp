#include "Quilon_/Images/Segmentation/PartitionsHierarchy.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images::Segmentation {

QUILON_DEFINE_INTERFACE_TYPE(IPartitionsHierarchy, L"Quilon_::Images::Segmentation::IPartitionsHierarchy",
                             System::Interface)

} // namespace Quilon_::Images::Segmentation
