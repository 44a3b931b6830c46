// Something drawn on a view that the user can pick and select: shapes,
// texts and vectors. This is the drawing model's drawable; graphic
// properties and contexts join it there.
//
//   if (drawable->HitTest(x, y, 3.0))   // within 3 units of what is drawn
//       drawable->SetSelected(true);
#pragma once

#include "Quilon_/Windows/Viewable.h"

namespace Quilon_::Drawing {

class QUILON_API IDrawable : public virtual Windows::IViewable {
    QUILON_INTERFACE(IDrawable)
public:
    virtual bool Selected() = 0;
    virtual void SetSelected(bool selected) = 0;
    // Whether (x, y), in the coordinates of the drawing, lies on what is
    // drawn or within `tolerance` of it.
    virtual bool HitTest(double x, double y, double tolerance) = 0;
};

} // namespace Quilon_::Drawing
