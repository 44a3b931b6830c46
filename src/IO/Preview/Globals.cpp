#include "Quilon_/IO/Preview/Globals.h"

#include "Quilon_/IO/Preview/PreviewExtendedPropertiesGenerator.h"
#include "Quilon_/IO/Preview/ThumbnailsGenerator.h"

namespace Quilon_::IO::Preview::Globals {

// What the main thread sets (the libraries' start-up code) is what every
// later thread clones.
QUILON_DEFINE_SETTING(ThumbnailsGenerators, SetThumbnailsGenerators, ClearThumbnailsGenerators,
                      System::Ref<IThumbnailsGeneratorCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(PreviewExtendedPropertiesGenerators, SetPreviewExtendedPropertiesGenerators,
                      ClearPreviewExtendedPropertiesGenerators,
                      System::Ref<IPreviewExtendedPropertiesGeneratorCollection>(),
                      System::gvsPerThreadFromMain)

// Empties the calling thread's list in place: a thread without a list has
// nothing to empty.
void ClearCollectionPreviewExtendedPropertiesGenerators()
{
    System::Pointer<IPreviewExtendedPropertiesGeneratorCollection, 0> generators =
        PreviewExtendedPropertiesGenerators();
    if (generators)
        generators->Clear();
}

} // namespace Quilon_::IO::Preview::Globals
