// A 2-D shape that is placed by its bounding rectangle: setting the
// rectangle moves and stretches the shape.
//
//   boxed->SetWidth(boxed->Width() * 2);   // stretched to the right, Left() kept
#pragma once

#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IBoxedF : public virtual IShape, public virtual ISizeable {
    QUILON_INTERFACE(IBoxedF)
public:
    // The smallest x of the shape.
    virtual float Left() = 0;
    virtual void SetLeft(float left) = 0;
    // The smallest y of the shape (y grows downwards).
    virtual float Top() = 0;
    virtual void SetTop(float top) = 0;
    virtual float Width() = 0;
    virtual void SetWidth(float width) = 0;
    virtual float Height() = 0;
    virtual void SetHeight(float height) = 0;
};

} // namespace Quilon_::Geometry::TwoD
