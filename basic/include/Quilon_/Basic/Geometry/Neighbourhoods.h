// The neighbourhoods of the reference library: what its predefined
// structuring elements, neighbourhood graphs and look-up tables contain, and
// the typed views through which its own operators read them at full speed.
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IStructuringElement> disk = StructuringElement::New(pseDisk, 2.0);
//   disk->Points()->Count();   // 13
//   // in an operator of this library, once per call:
//   if (auto* view = dynamic_cast<const Basic::Geometry::OffsetsView*>(disk.Get()))
//       for (const Basic::Geometry::Offset& o : view->Offsets()) ...
//
// Orientation. Offsets are (x, y) or (x, y, z) on the first two or three
// spatial axes of the element's axes, in ascending bit order (aX, aY, aZ;
// aT and aB are never spatial and hold 0). Images grow downwards: y = -1 is
// the row above, and "north" is -y.
//
// Embedding. A two-dimensional element, graph or kernel made for axes with a
// third spatial axis lies in the plane of the first two (z = 0). A
// three-dimensional one needs three spatial axes. Fewer spatial axes than
// the description's dimension are refused with "Axes '%1%' have fewer than
// %2% spatial axes".
//
// Structuring elements (StructuringElement::New(value, radius[, axes])). The
// radius is a double, not negative ("The radius of a structuring element
// must not be negative: %1%"); r = floor(radius) bounds the element, which
// always holds the origin. Default axes: aXY for 0x2xx values, aXYZ for
// 0x3xx values. Points are listed z slowest, then y, x fastest.
//
//   | value             | points (x, y[, z]) kept                    | count for r = 0, 1, 2, 3 |
//   |-------------------|--------------------------------------------|--------------------------|
//   | pseSquare         | max(|x|, |y|) <= r                         | 1, 9, 25, 49             |
//   | pseDiamond        | |x| + |y| <= r                             | 1, 5, 13, 25             |
//   | pseDisk           | x² + y² <= radius² (the radius as given)   | 1, 5, 13, 29             |
//   | pseHorizontalLine | y = 0, |x| <= r                            | 1, 3, 5, 7               |
//   | pseVerticalLine   | x = 0, |y| <= r                            | 1, 3, 5, 7               |
//   | pseLine45         | y = -x, |x| <= r (rises to the right)      | 1, 3, 5, 7               |
//   | pseLine135        | y = x, |x| <= r (falls to the right)       | 1, 3, 5, 7               |
//   | pseCube           | max(|x|, |y|, |z|) <= r                    | 1, 27, 125, 343          |
//   | pseOctahedron     | |x| + |y| + |z| <= r                       | 1, 7, 25, 63             |
//   | pseBall           | x² + y² + z² <= radius²                    | 1, 7, 33, 123            |
//
// A disk of radius 1.5 therefore is the 3 x 3 square (the diagonals lie at
// 1.414), a disk of radius 1 the cross. An element made from a coordinates
// collection keeps its points in the given order, duplicates dropped; its
// Radius() is the largest |offset| on any axis. An element made from a shape
// and a scale s (> 0, "The scale of a structuring element must be positive:
// %1%") holds every integer offset p of the scaled bounds for which the
// shape contains p / s, on the shape's axes; its Radius() is again the
// largest |offset|.
//
// Neighbourhood graphs (NgbGraph::New(value, axes)), offsets in this order:
//
//   | pngSquare4    | (1,0) (0,-1) (-1,0) (0,1): east, north, west, south                       |
//   | pngSquare8    | (1,0) (1,-1) (0,-1) (-1,-1) (-1,0) (-1,1) (0,1) (1,1): the ring from east,  |
//   |               | turning through north (counter-clockwise as displayed)                     |
//   | pngHexagonal6 | (1,0) (0,-1) (-1,-1) (-1,0) (0,1) (1,1): the hexagonal lattice stored on    |
//   |               | the square grid, each row half a pixel left of the row above (the pixel    |
//   |               | (x, y) lies at x - y/2),                                                   |
//   |               | so the six neighbours are the ring of eight without (1,-1) and (-1,1);     |
//   |               | also in ring order                                                         |
//   | pngCubic6     | (1,0,0) (0,-1,0) (-1,0,0) (0,1,0) (0,0,-1) (0,0,1): pngSquare4, then the    |
//   |               | planes before and behind                                                   |
//   | pngCubic26    | every (x, y, z) of {-1,0,1}³ but the origin, z slowest, x fastest          |
//
// The ring orders matter: the look-up table rules below walk the ring. A
// graph is a read-only collection (Add and the other changes raise); an
// operator reads its offsets once per call through the collection.
//
// Look-up tables (NgbLUT::New). A configuration is coded with bit 0 for the
// centre and bit k + 1 for neighbour k of the graph, so the table of a graph
// of n neighbours has 2^(n+1) entries (512 for pngSquare8) and an operator
// reads the new value of a point as table[code]: one load per point. Graphs
// of more than 16 neighbours are refused. The predefined rules are defined
// on pngSquare8 (objects 8-connected, background 4-connected) and refused
// on any other graph. With x1..x8 the ring of pngSquare8 (x1 east, odd
// indices the 4-neighbours), c the centre, N the number of set neighbours,
// T the number of 0-to-1 steps around the ring and C8 the 8-connectivity
// number Σ over k in {1,3,5,7} of (1-x_k) - (1-x_k)(1-x_k+1)(1-x_k+2), a
// point is simple (its removal keeps the topology) when C8 = 1, and an end
// point when c = 1, N is 1 or 2 and T = 1 (one neighbour, or two touching
// ones). Every table gives 0 for c = 0, and for c = 1:
//
//   | pnlSinglePoints     | 1 if N = 0 (isolated points), else 0                                     |
//   | pnlMultiplePoints   | 1 if T >= 3 (where three or more branches of a thin line meet), else 0   |
//   | pnlEndPoints        | 1 for an end point, else 0                                               |
//   | pnlBoundaryPoints   | 1 if one of the four 4-neighbours is 0, else 0                           |
//   | pnlPruning          | 0 if N <= 1 (end points of one neighbour and isolated points), else 1    |
//   | pnlHomotopicPruning | 0 for an end point, else 1: isolated points and loops stay               |
//   | pnlCentroid         | 0 for a simple point with N >= 1, else 1: repeated until stable,          |
//   |                     | objects without holes shrink towards a point, objects with holes to rings |
//   | pnlSKIZ             | 0 for a point whose removal keeps the 4-connected topology               |
//   |                     | (C4 = Σ x_k - x_k x_k+1 x_k+2 over odd k equals 1), else 1; applied to   |
//   |                     | the complement of the objects until stable, it leaves the lines that      |
//   |                     | separate the objects' zones of influence                                  |
//   | pnlSkeleton1        | 0 for a simple point that is no end point and has N >= 2, else 1: one     |
//   |                     | thinning step that keeps end points, so that branches survive            |
//
// Textual tables (NgbLUT::New(strings, graph)): each string is one pattern of
// n + 1 characters, the centre first, then the neighbours in the graph's
// order; '1' needs the bit set, '0' needs it clear, 'x' takes either; spaces
// are ignored. A configuration that matches any pattern maps to 1, every
// other to 0.
#pragma once

#include <cstdint>
#include <span>

namespace Quilon_::Basic::Geometry {

// One offset on the first three spatial axes; z is 0 in two dimensions.
struct Offset {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t z = 0;

    friend bool operator==(const Offset&, const Offset&) = default;
};

// Offered by this library's structuring elements: the points as plain
// offsets, in the order of Points(). Valid as long as the element lives.
class OffsetsView {
public:
    virtual std::span<const Offset> Offsets() const = 0;

protected:
    ~OffsetsView() = default;
};

// Offered by this library's look-up tables: the table indexed by the code
// described above.
class LookUpTableView {
public:
    virtual std::span<const unsigned char> Table() const = 0;

protected:
    ~LookUpTableView() = default;
};

} // namespace Quilon_::Basic::Geometry
