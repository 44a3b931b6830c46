#include "Quilon_/Geometry/Chain.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IChainSimplifier, L"Quilon_::Geometry::IChainSimplifier", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IChainInterpolator, L"Quilon_::Geometry::IChainInterpolator", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IHighGradientChainInterpolator,
                             L"Quilon_::Geometry::IHighGradientChainInterpolator", IChainInterpolator)

System::Functions::Template::Function<System::Ref<IChainSimplifier> (*)(double)>
    DouglasPeukerChainSimplifier::New{L"New"};
System::Functions::Template::Function<System::Ref<IHighGradientChainInterpolator> (*)()>
    HighGradientChainInterpolator::New{L"New"};

} // namespace Quilon_::Geometry
