// The numeric value types: Moments as a record, the complex facets as an
// enumeration, both boxed in Any.
#include "Quilon_/Math/ComplexFacet.h"
#include "Quilon_/Math/Moments.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::NumericValues {

using namespace Quilon_::Math;
using System::Any;

TEST(Moments, ComparesAllSixFieldsAndBoxes)
{
    Moments a, b;
    EXPECT_TRUE(a == b);
    b.Kurtosis() = 1.5;
    EXPECT_TRUE(a != b) << "the last field counts";
    a = b;
    EXPECT_TRUE(a == b);
    a.Minimum() = -1;
    const Moments& constant = a;
    EXPECT_EQ(constant.Minimum(), -1);

    const Any one = System::ToAny(a);
    EXPECT_TRUE(one.CastTo<Moments>() == a);
    const Any many = System::ToAny(std::vector<Moments>{a, b});
    EXPECT_EQ(many.CastTo<std::vector<Moments>>().size(), 2u);
    EXPECT_FALSE(one == System::ToAny(b));
}

TEST(ComplexFacet, BoxesAsAnEnumerationAndHasNames)
{
    const Any facet = System::ToAny(cfPhase);
    EXPECT_EQ(facet.CastTo<ComplexFacetEnum>(), cfPhase);
    EXPECT_EQ(System::ToString(cfMagnitude), L"cfMagnitude");
    EXPECT_EQ(System::ToString(static_cast<ComplexFacetEnum>(4)), L"");
}

} // namespace Quilon_::Tests::NumericValues
