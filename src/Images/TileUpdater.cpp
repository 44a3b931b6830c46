#include "Quilon_/Images/TileUpdater.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(ITileUpdater, L"Quilon_::Images::ITileUpdater", System::Interface)

} // namespace Quilon_::Images
