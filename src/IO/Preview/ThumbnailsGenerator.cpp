#include "Quilon_/IO/Preview/ThumbnailsGenerator.h"

namespace Quilon_::IO::Preview {

QUILON_DEFINE_INTERFACE_TYPE(IThumbnailsGenerator, L"Quilon_::IO::Preview::IThumbnailsGenerator",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IThumbnailsGeneratorCollection,
                             L"Quilon_::IO::Preview::IThumbnailsGeneratorCollection",
                             System::Collections::Template::ICollection<IThumbnailsGenerator>)

ThumbnailsGeneratorCollection::Factory ThumbnailsGeneratorCollection::New;

} // namespace Quilon_::IO::Preview
