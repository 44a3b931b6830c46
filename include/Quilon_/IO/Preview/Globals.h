// The makers of previews that browsers and open dialogs choose from:
//
//   IO::Preview::Globals::ThumbnailsGenerators()->Add(myMaker);   // this thread's list
//   IO::Preview::Globals::ClearCollectionPreviewExtendedPropertiesGenerators();   // empty, still there
//
// Each setting holds one value per thread: a thread's first read clones what
// the main thread set, so a thread can work with lists of its own. ClearX()
// drops every thread's value; ClearCollectionX() empties the calling
// thread's list and keeps the object.
#pragma once

#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::IO::Preview {
class IThumbnailsGeneratorCollection;
class IPreviewExtendedPropertiesGeneratorCollection;
} // namespace Quilon_::IO::Preview

namespace Quilon_::IO::Preview::Globals {

QUILON_DECLARE_SETTING(ThumbnailsGenerators, SetThumbnailsGenerators, ClearThumbnailsGenerators,
                       System::Ref<IThumbnailsGeneratorCollection>);
QUILON_DECLARE_SETTING(PreviewExtendedPropertiesGenerators, SetPreviewExtendedPropertiesGenerators,
                       ClearPreviewExtendedPropertiesGenerators,
                       System::Ref<IPreviewExtendedPropertiesGeneratorCollection>);
QUILON_API void ClearCollectionPreviewExtendedPropertiesGenerators();

} // namespace Quilon_::IO::Preview::Globals
