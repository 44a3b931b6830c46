#include "Quilon_/System/Collections/SafeList.h"

#include "Quilon_/System/Raise.h"

namespace Quilon_::System::Collections::Template {

void Detail::RaisePassedTheEnd()
{
    QUILON_RAISE(L"Attempt to access passed the end of the list");
}

} // namespace Quilon_::System::Collections::Template
