// A 3-D shape placed by its bounding box: setting the box moves and
// stretches the shape. x to the right, y down, z away from the viewer.
//
//   boxed->SetDepth(boxed->Depth() / 2);   // flattened towards the front, Front() kept
#pragma once

#include "Quilon_/Geometry/ThreeD/Shape.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IBoxedF : public virtual IShape, public virtual ISizeableND {
    QUILON_INTERFACE(IBoxedF)
public:
    virtual float Left() = 0;
    virtual void SetLeft(float left) = 0;
    virtual float Top() = 0;
    virtual void SetTop(float top) = 0;
    // The smallest z.
    virtual float Front() = 0;
    virtual void SetFront(float front) = 0;
    virtual float Width() = 0;
    virtual void SetWidth(float width) = 0;
    virtual float Height() = 0;
    virtual void SetHeight(float height) = 0;
    virtual float Depth() = 0;
    virtual void SetDepth(float depth) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
