#include "Quilon_/Windows/GraphicSurface.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Windows {

QUILON_DEFINE_INTERFACE_TYPE(IGraphicSurface, L"Quilon_::Windows::IGraphicSurface", System::Interface)

GraphicSurface::Factory GraphicSurface::New;

} // namespace Quilon_::Windows
