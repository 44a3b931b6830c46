// Skeletons of binary images. An implementation library registers the
// implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Skeleton;
//   Functions::ConnectedSkeleton(binary, skeleton);   // homotopic, 8-connected objects
//   Functions::ThinSkeleton(binary, skeleton, Quilon_::Geometry::NgbLUT::New(Quilon_::Geometry::pnlSkeleton1,
//   Quilon_::Geometry::pngSquare8));
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Geometry {
class INgbGraph;
class INgbLUT;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Skeleton::Functions {

using Image = System::Ref<IImage>;
using LookUpTable = System::Ref<Quilon_::Geometry::INgbLUT>;

// ConnectedSkeleton (keeps the topology), MinimalSkeleton (also prunes the
// branches), OpenSkeleton (the union of the residues of openings, not
// connected): [0] (binary, output); [1] (binary, output, graph), the
// connectivity of the objects.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<
          void(Image, Image), void(Image, Image, System::Ref<Quilon_::Geometry::INgbGraph>)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function2 ConnectedSkeleton;
extern QUILON_API Function2 MinimalSkeleton;
extern QUILON_API Function2 OpenSkeleton;
// (binary, output, table): thickening of the background by the table until
// nothing changes; what is left of the objects is the skeleton.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, LookUpTable)> ThickenSkeleton;
// (binary, output, table): thinning by the table until nothing changes.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, LookUpTable)> ThinSkeleton;

} // namespace Quilon_::Images::Morphology::Skeleton::Functions
