// A hierarchy of partitions of an image: level 0 the finest partition into
// regions, each next level made by merging regions of the one before, up
// to a single region. HierarchicalPartition builds one; ExtractPartition
// writes the labels of one of its levels:
//
//   Ref<Images::Segmentation::IPartitionsHierarchy> h =
//       Images::Segmentation::Functions::HierarchicalPartition(image);
//   Images::Segmentation::Functions::ExtractPartition(image, labels, h, h->LevelCount() / 2);
#pragma once

#include "Quilon_/System/Interface.h"

#include <cstdint>

namespace Quilon_::Images::Segmentation {

class QUILON_API IPartitionsHierarchy : public virtual System::Interface {
    QUILON_INTERFACE(IPartitionsHierarchy)
public:
    // The number of levels, at least 1.
    virtual std::int64_t LevelCount() = 0;
    // The number of regions of a level, decreasing with the level.
    virtual std::int64_t RegionCount(std::int64_t level) = 0;
};

} // namespace Quilon_::Images::Segmentation
