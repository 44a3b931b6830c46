#include "Quilon_/System/EventTarget.h"

namespace Quilon_::System {

EventTargetBase::~EventTargetBase() = default;
EventTarget::~EventTarget() = default;

} // namespace Quilon_::System
