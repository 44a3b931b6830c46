#include "Quilon_/Drawing/WorldContext.h"
#include "Quilon_/Windows/GraphicSurface.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IWorldContext, L"Quilon_::Drawing::IWorldContext", System::Interface)

WorldContext::Factory WorldContext::New;

} // namespace Quilon_::Drawing
