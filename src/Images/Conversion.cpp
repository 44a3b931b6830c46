#include "Quilon_/Images/Conversion.h"

#include <utility>

namespace Quilon_::Images::Conversion {

QUILON_DEFINE_FUNCTION_SLOT(Clone, 1, BitmapRef (*)(BitmapRef, System::NumericTypeEnum, bool))
QUILON_DEFINE_FUNCTION_SLOT(Copy, 1, void (*)(BitmapRef, BitmapRef))
QUILON_DEFINE_FUNCTION_SLOT(Convert, 1, void (*)(BitmapRef, BitmapRef, MaskRef))

BitmapRef Clone(BitmapRef source, System::NumericTypeEnum type, bool scale)
{
    return QUILON_FUNCTION_SLOT(Clone, 1)(std::move(source), type, scale);
}

void Copy(BitmapRef source, BitmapRef destination)
{
    QUILON_FUNCTION_SLOT(Copy, 1)(std::move(source), std::move(destination));
}

// The checking policy of the reference arguments ran when the caller built
// them; a null mask is allowed.
void Convert(BitmapRef source, BitmapRef destination, MaskRef mask)
{
    QUILON_FUNCTION_SLOT(Convert, 1)(std::move(source), std::move(destination), std::move(mask));
}

} // namespace Quilon_::Images::Conversion
