// The bitmap conversions are slots that an implementation library fills.
#include "Quilon_/Images/Conversion.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::Conversion {

using namespace Quilon_::Images::Conversion;
using ConversionSlots = RaisingTest;

BitmapRef SameBitmap(BitmapRef source, System::NumericTypeEnum, bool)
{
    return source;
}

TEST_F(ConversionSlots, AreEmptyUntilALibraryFillsThemAndEmptyAgainAfterNull)
{
    EXPECT_FALSE(CloneFunction1IsImplemented());
    SetCloneFunction1(&SameBitmap);
    EXPECT_TRUE(CloneFunction1IsImplemented());
    SetCloneFunction1(nullptr);
    EXPECT_FALSE(CloneFunction1IsImplemented());
    EXPECT_FALSE(CopyFunction1IsImplemented());
    EXPECT_FALSE(ConvertFunction1IsImplemented());
}

} // namespace Quilon_::Tests::Conversion
