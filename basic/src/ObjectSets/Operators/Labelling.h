// Connected-component labelling of binary images and volumes, the kernel
// of the object generators (Clusters, Threshold) and of Labels.
//
// The image is read once, row by row: a row function fills a byte per pixel
// (non-zero = foreground), the row is cut into runs of foreground, and each
// run is joined to the runs it touches in the rows already seen through a
// union-find of provisional labels. A final pass over the runs (not the
// pixels) numbers the components in raster order of their first pixel and
// gives each its pixel count and bounding box, from which the shapes are
// cut out in one more pass over the runs, not over the image.
//
//   const Connectivity eight = Connectivity::Of(QG::pngSquare8);
//   Labelling labels = LabelRows({width, height, 1}, eight,
//                                [&](std::int64_t y, std::int64_t z, std::uint8_t* row) { ... });
//   std::vector<BinaryMask> shapes = labels.Masks();   // each over its bounding box
#pragma once

#include "Geometry/TwoD/BitmapShape.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/PredefinedNgbGraph.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace Quilon_::Basic::ObjectSets::Operators {

using Basic::Geometry::BinaryMask;
using Basic::Geometry::Triple;

// Which pixels of the rows before a pixel are its neighbours: for each row
// offset (dy, dz) the offsets along X from dxLow to dxHigh. Pixels next to
// each other in a row are always neighbours.
struct Connectivity {
    struct RowOffset {
        int dy, dz, dxLow, dxHigh;
    };
    std::vector<RowOffset> before;

    static Connectivity Of(Quilon_::Geometry::PredefinedNgbGraphEnum graph);
    // From the offsets of a graph; it is taken as symmetric, an offset
    // after the pixel standing for its opposite. Raises "Unsupported
    // neighbourhood: %1%" when the offsets along X of a row are not
    // contiguous.
    static Connectivity Of(System::Ref<Quilon_::Geometry::INgbGraph> graph);
    // Whether the neighbourhood reaches other planes.
    bool IsVolumetric() const noexcept;
};

// A run of foreground pixels [x0, x1) in row `row` = z * height + y.
struct Run {
    std::int32_t x0, x1;
    std::int32_t row;
    std::int32_t label;
};

struct Component {
    std::int64_t count = 0;
    Triple low{}, high{};
};

struct Labelling {
    Triple size{0, 0, 1};
    // In raster order; `label` is the run's component.
    std::vector<Run> runs;
    // In raster order of their first pixel (or of the label values, from
    // LabelValues).
    std::vector<Component> components;

    // The pixels of every component, each over its bounding box, painted in
    // one pass over the runs.
    std::vector<BinaryMask> Masks() const;
};

// Fills `row` (size[0] bytes) with the foreground of row y of plane z.
using RowFunction = std::function<void(std::int64_t y, std::int64_t z, std::uint8_t* row)>;

// The connected components of the foreground.
Labelling LabelRows(const Triple& size, const Connectivity& connectivity, const RowFunction& rows);

// Fills `row` (size[0] values) with the labels of row y of plane z.
using LabelRowFunction = std::function<void(std::int64_t y, std::int64_t z, std::int64_t* row)>;

// One component per distinct non-zero value, connected or not, in
// ascending order of the values, which are returned in `values`.
Labelling LabelValues(const Triple& size, const LabelRowFunction& rows, std::vector<std::int64_t>& values);

} // namespace Quilon_::Basic::ObjectSets::Operators
