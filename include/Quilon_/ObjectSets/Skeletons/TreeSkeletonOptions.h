// The options of TreeSkeleton, carried to it in an Any. Their content is the
// implementation's; here the record is a value that travels, compares and
// boxes:
//
//   ObjectSets::Skeletons::Functions::TreeSkeleton(shapes, trees,
//                                                  System::ToAny(ObjectSets::Skeletons::TreeSkeletonOptions()));
#pragma once

#include "Quilon_/System/Any.h"

namespace Quilon_::ObjectSets::Skeletons {

class QUILON_API TreeSkeletonOptions {
public:
    bool operator==(const TreeSkeletonOptions&) const = default;
};

} // namespace Quilon_::ObjectSets::Skeletons

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::Skeletons::TreeSkeletonOptions& value);
} // namespace Quilon_::System
