#include "Quilon_/Images/Segmentation/Functions.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Interval.h"

namespace Quilon_::Images::Segmentation::Functions {

Function2 Threshold(L"Threshold");
Function3 OtsuThreshold(L"OtsuThreshold");

} // namespace Quilon_::Images::Segmentation::Functions
