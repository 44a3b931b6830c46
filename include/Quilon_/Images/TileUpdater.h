// The object that refreshes the tiles of tiled images in the background;
// the tiled-image library defines what it does. Held per thread by
// Images::Globals::TileUpdater():
//
//   Pointer<Images::ITileUpdater> updater = Images::Globals::TileUpdater();
#pragma once

#include "Quilon_/System/Interface.h"

namespace Quilon_::Images {

class QUILON_API ITileUpdater : public virtual System::Interface {
    QUILON_INTERFACE(ITileUpdater)
};

} // namespace Quilon_::Images
