// Measures the profile of an image along a 2-D line: the samples met when
// walking from the line's start to its end.
//
//   Ref<Geometry::TwoD::ILineProfileMeasurer> m = Geometry::TwoD::LineProfileMeasurer::New();
//   m->SetLine(line);
//   std::vector<double> samples = m->Profile(bitmap);
#pragma once

#include "Quilon_/Geometry/TwoD/Line.h"
#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/Measurements/Measurer.h"

#include <vector>

namespace Quilon_::Geometry::TwoD {

class QUILON_API ILineProfileMeasurer : public virtual Measurements::IMeasurer {
    QUILON_INTERFACE(ILineProfileMeasurer)
public:
    virtual System::Pointer<ILineF, 0> Line() = 0;
    virtual void SetLine(System::Ref<ILineF> line) = 0;
    // One sample per pixel step along the line, of the first band.
    virtual std::vector<double> Profile(System::Ref<Images::IBitmap> bitmap) = 0;
};

namespace LineProfileMeasurer {
using Factory = System::Functions::Template::Factory<System::Ref<ILineProfileMeasurer>()>;
extern QUILON_API Factory New;
} // namespace LineProfileMeasurer

} // namespace Quilon_::Geometry::TwoD
