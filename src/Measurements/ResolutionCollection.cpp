#include "Quilon_/Measurements/ResolutionCollection.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IResolutionCollection, L"Quilon_::Measurements::IResolutionCollection",
                             System::Collections::Template::ICollection<IResolution>)

ResolutionCollection::Factory ResolutionCollection::New;

} // namespace Quilon_::Measurements
