#include "Quilon_/System/Event.h"

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::System {

EventHandlerBase::~EventHandlerBase() = default;

void Detail::RaiseWrongEventHandlerClass(const std::type_info& expected, const std::type_info& provided)
{
    QUILON_RAISE(L"Expected EventHandler class : <%1%>. %2% provided instead.", RuntimeClassName(expected),
                 RuntimeClassName(provided));
}

} // namespace Quilon_::System
