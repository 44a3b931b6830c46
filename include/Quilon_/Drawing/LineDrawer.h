// Rasterises lines into pixels in a line style: what burns a drawn line into
// an image or a mask.
//
//   Ref<Drawing::ILineDrawer> dashed = Drawing::LineDrawer::New(Drawing::lsDash);
//   for (Drawing::Point<int> p : dashed->Pixels({0, 0}, {20, 5})) mask(p) = 1;
#pragma once

#include "Quilon_/Drawing/Point.h"
#include "Quilon_/Drawing/Styles.h"
#include "Quilon_/System/Functions/Factory.h"

#include <vector>

namespace Quilon_::Drawing {

class QUILON_API ILineDrawer : public virtual System::Interface {
    QUILON_INTERFACE(ILineDrawer)
public:
    // The pixels of the line from `from` to `to`, both ends included, one per
    // step along the longer axis, in order; the gaps of the style are left
    // out.
    virtual std::vector<Point<int>> Pixels(const Point<int>& from, const Point<int>& to) = 0;
};

namespace LineDrawer {
using Factory = System::Functions::Template::Factory<System::Ref<ILineDrawer>(LineStyleEnum)>;
extern QUILON_API Factory New;
} // namespace LineDrawer

} // namespace Quilon_::Drawing
