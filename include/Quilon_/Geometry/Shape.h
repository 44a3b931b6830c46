// The dimension-free shapes: the root of every two- and three-dimensional
// shape, the capabilities that shapes share (sizing, runs, bitmap form), and
// the dimension-free point, line and vector that the 2-D and 3-D families
// build on. All of them are abstract; the concrete shapes come from the
// libraries that the core loads.
//
//   Ref<Geometry::IShapeND> shape = Geometry::TwoD::PolygonF::New(points, Geometry::Axes::aXY);
//   Ref<Geometry::IBoxD> bounds = shape->Bounds();
//   shape->Move(Geometry::CoordinatesD::New(5.0, 0.0, Geometry::Axes::aXY));   // fires Moved()
//   if (auto sizeable = Pointer<Geometry::ISizeableND, 0>(shape))
//       sizeable->FitTo(box);                                                  // fires Resized()
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/ShapeEventArgs.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Event.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Images {
class IBitmap;
} // namespace Quilon_::Images

namespace Quilon_::Geometry {

using MoveEvent = System::Event<System::Ref<IMoveEventArgs>>;
using ResizeEvent = System::Event<System::Ref<IResizeEventArgs>>;
using ShapeChangeEvent = System::Event<System::Ref<System::IEventArgs>>;

// Every shape, whatever its dimension. Locations are in the shape's own axes
// and in real-valued coordinates.
class QUILON_API IShapeND : public virtual System::Interface {
    QUILON_INTERFACE(IShapeND)
public:
    virtual Geometry::Axes Axes() = 0;
    virtual void SetAxes(Geometry::Axes axes) = 0;
    // The number of spatial axes: 2 for the planar shapes, 3 for solids.
    virtual std::int64_t Dimension() = 0;
    // The smallest box that holds the shape; its upper corner is the largest
    // coordinate itself.
    virtual System::Ref<IBoxD> Bounds() = 0;
    // The centre of the bounding box.
    virtual System::Ref<ICoordinatesD> Center() = 0;
    // Translates the shape by `offset` and fires Moved().
    virtual void Move(System::Ref<ICoordinatesD> offset) = 0;
    // Maps every point through a homogeneous matrix, row-vector convention.
    virtual void Transform(System::Ref<Math::IMatrixD> matrix) = 0;
    virtual bool Contains(System::Ref<ICoordinatesD> location) = 0;
    // True for a shape with no points.
    virtual bool IsEmpty() = 0;
    virtual MoveEvent& Moved() = 0;
    virtual ResizeEvent& Resized() = 0;
    // Any change of the shape's geometry, moves and resizes included.
    virtual ShapeChangeEvent& Changed() = 0;
};

// A shape whose extent can be set.
class QUILON_API ISizeableND : public virtual System::Interface {
    QUILON_INTERFACE(ISizeableND)
public:
    // The extent on each axis, upper less lower corner of Bounds().
    virtual System::Ref<ICoordinatesD> Size() = 0;
    // Scales the shape about its lower corner to the given extent.
    virtual void SetSize(System::Ref<ICoordinatesD> size) = 0;
    // Scales and moves the shape so that its bounds become `bounds`; fires
    // Resized().
    virtual void FitTo(System::Ref<IBoxD> bounds) = 0;
};

// A shape that can list its pixels as runs.
class QUILON_API IRunsProvider : public virtual System::Interface {
    QUILON_INTERFACE(IRunsProvider)
public:
    // The pixels covered by the shape, as integer boxes one pixel thick on
    // every axis but the first, ordered by their lower corners with the
    // first axis fastest.
    virtual std::vector<System::Ref<IBox>> Runs() = 0;
};

class IBitmapShapeND;

// A shape that can be rasterised.
class QUILON_API IBitmapShapeConvertible : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapShapeConvertible)
public:
    // A new bitmap shape holding the pixels whose centres lie in the shape.
    virtual System::Ref<IBitmapShapeND> ToBitmapShape() = 0;
};

// A shape given pixel by pixel: a binary bitmap placed at an origin.
class QUILON_API IBitmapShapeND : public virtual IShapeND, public virtual ISizeableND {
    QUILON_INTERFACE(IBitmapShapeND)
public:
    virtual System::Ref<Images::IBitmap> Bitmap() = 0;
    virtual void SetBitmap(System::Ref<Images::IBitmap> bitmap) = 0;
    // The location of the bitmap's first pixel.
    virtual System::Ref<ICoordinates> Origin() = 0;
    virtual void SetOrigin(System::Ref<ICoordinates> origin) = 0;
};

// A single point, whatever the dimension.
class QUILON_API IPointFND : public virtual IShapeND {
    QUILON_INTERFACE(IPointFND)
public:
    virtual System::Ref<ICoordinatesF> Position() = 0;
    virtual void SetPosition(System::Ref<ICoordinatesF> position) = 0;
};

// A straight segment from Start() to End(), whatever the dimension.
class QUILON_API ILineFND : public virtual IShapeND, public virtual ISizeableND {
    QUILON_INTERFACE(ILineFND)
public:
    virtual System::Ref<ICoordinatesF> Start() = 0;
    virtual void SetStart(System::Ref<ICoordinatesF> start) = 0;
    virtual System::Ref<ICoordinatesF> End() = 0;
    virtual void SetEnd(System::Ref<ICoordinatesF> end) = 0;
};

// An arrow: a direction drawn from an origin. Not a shape: it has no extent
// of its own.
class QUILON_API IVectorFND : public virtual System::Interface {
    QUILON_INTERFACE(IVectorFND)
public:
    virtual System::Ref<ICoordinatesF> Origin() = 0;
    virtual void SetOrigin(System::Ref<ICoordinatesF> origin) = 0;
    virtual System::Ref<ICoordinatesF> Direction() = 0;
    virtual void SetDirection(System::Ref<ICoordinatesF> direction) = 0;
};

// A set of points of any dimension.
class QUILON_API IPointFNDSet : public virtual System::Collections::Template::ICollection<IPointFND> {
    QUILON_INTERFACE(IPointFNDSet)
};

} // namespace Quilon_::Geometry
