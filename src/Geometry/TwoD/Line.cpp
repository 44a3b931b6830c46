#include "Quilon_/Geometry/TwoD/Line.h"

#include "Quilon_/System/Type.h"

#include <atomic>

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(ILineF, L"Quilon_::Geometry::TwoD::ILineF", IBoxedF, ILineFND,
                             Drawing::IDrawable, Windows::IViewable)

LineF::Factory LineF::New;

namespace {
// Written at start-up and read by rasterising code on any thread: relaxed
// atomic access keeps a late write well defined without a lock.
std::atomic<ConnectivityEnum> defaultConnectivity{cn8Connected};
} // namespace

ConnectivityEnum LineF::DefaultConnectivity()
{
    return defaultConnectivity.load(std::memory_order_relaxed);
}

void LineF::SetDefaultConnectivity(ConnectivityEnum connectivity)
{
    defaultConnectivity.store(connectivity, std::memory_order_relaxed);
}

} // namespace Quilon_::Geometry::TwoD
