// Padding values: equality, copies that own their value, texts.
#include "Quilon_/Images/Padding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

namespace Quilon_::Tests::PaddingSuite {

using namespace Quilon_::Images;
using System::Any;
using System::ToAny;

TEST(Padding, EqualityComparesTypesThenValues)
{
    struct Case {
        Padding a, b;
        bool equal;
    };
    const Case cases[] = {
        {Padding(ptConstant, Any()), Padding(ptConstant, Any()), true},
        {Padding(ptConstant, Any()), Padding(ptReplicate, Any()), false},
        {Padding(ptConstant, ToAny(std::int64_t(0))), Padding(ptMirror, ToAny(std::int64_t(0))), false},
        {Padding(ptConstant, ToAny(std::int64_t(3))), Padding(ptConstant, ToAny(std::int64_t(3))), true},
        {Padding(ptConstant, ToAny(std::int64_t(3))), Padding(ptConstant, ToAny(std::int64_t(4))), false},
        {Padding(ptConstant, ToAny(std::int64_t(3))), Padding(ptConstant, Any()), false},
        // Values compare by their holders: an int is not an int64.
        {Padding(ptConstant, ToAny(3)), Padding(ptConstant, ToAny(std::int64_t(3))), false},
        {Padding(), Padding(ptConstant, ToAny(std::int64_t(0))), true},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].a == cases[i].b, cases[i].equal) << "case " << i;
        EXPECT_EQ(cases[i].a != cases[i].b, !cases[i].equal) << "case " << i;
    }
}

TEST(Padding, CopiesOwnTheirValueAndOutliveTheSource)
{
    auto source = std::make_unique<Padding>(ptMirror, ToAny(2.5));
    const Padding copied(*source);
    Padding assigned;
    assigned = *source;
    EXPECT_NE(copied.PaddingValue().Holder(), source->PaddingValue().Holder());
    source.reset();
    for (const Padding* p : {&copied, static_cast<const Padding*>(&assigned)}) {
        EXPECT_EQ(p->PaddingType(), ptMirror);
        EXPECT_EQ(p->PaddingValue().CastTo<double>(), 2.5);
    }
    const Any boxed = System::ToAny(copied);
    EXPECT_EQ(boxed.CastTo<Padding>(), copied);
}

TEST(Padding, TypesPrintTheirNamesAndOtherValuesTheirNumber)
{
    EXPECT_EQ(System::ToString(ptConstant), L"ptConstant");
    EXPECT_EQ(System::ToString(ptMirror), L"ptMirror");
    EXPECT_EQ(System::ToString(static_cast<PaddingTypeEnum>(9)), L"9");
}

} // namespace Quilon_::Tests::PaddingSuite
