#include "Quilon_/IO/Preview/PreviewExtendedPropertiesGenerator.h"

namespace Quilon_::IO::Preview {

QUILON_DEFINE_INTERFACE_TYPE(IPreviewExtendedPropertiesGenerator,
                             L"Quilon_::IO::Preview::IPreviewExtendedPropertiesGenerator", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IPreviewExtendedPropertiesGeneratorCollection,
                             L"Quilon_::IO::Preview::IPreviewExtendedPropertiesGeneratorCollection",
                             System::Collections::Template::ICollection<IPreviewExtendedPropertiesGenerator>)

PreviewExtendedPropertiesGeneratorCollection::Factory PreviewExtendedPropertiesGeneratorCollection::New;

} // namespace Quilon_::IO::Preview
