// Formatting messages: positional placeholders, lenient narrow arguments,
// and the text that replaces a format that does not fit its arguments.
#include "Quilon_/System/Formatter.h"
#include "Quilon_/System/Type.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Quilon_::Tests::FormatterTests {

using namespace Quilon_::System;
using Detail::Formatter;
using namespace ::testing;

TEST(FormatterTest, PlaceholdersAreFilledByPositionWithTheToolkitsTypes)
{
    std::wstring text = Formatter(L"%2% before %1%, %2% again, 100%%") % 7 % L"x";
    EXPECT_EQ(text, L"x before 7, x again, 100%");
    text = Formatter(L"%1%|%2%|%3%|%4%") % (std::int64_t(1) << 40) % 2.5 % Interface::GetType() % std::wstring(L"w");
    EXPECT_EQ(text, L"1099511627776|2.5|Quilon_::System::Interface|w");
}

TEST(FormatterTest, NarrowTextIsUtf8AndInvalidBytesAreShownNotRaised)
{
    // Narrow texts often come from foreign what() strings.
    std::wstring text;
    EXPECT_NO_THROW(text = Formatter(L"<%1%|%2%>") % "caf\xC3\xA9" % std::string("a\xFF" "b"));
    EXPECT_EQ(text, L"<caf\u00E9|a\uFFFDb>");
}

TEST(FormatterTest, FormatThatDoesNotFitItsArgumentsGivesTheFailureText)
{
    // The exception text and class are boost::format's own.
    const std::wstring tooFew = Formatter(L"Between %1% and %2%") % 1;
    const std::wstring tooMany = Formatter(L"Only %1%") % 1 % 2;
    EXPECT_THAT(tooFew, AllOf(StartsWith(L"Format failed for format string 'Between %1% and %2%' (exception = '"),
                              HasSubstr(L"', type = '"), HasSubstr(L"too_few_args"), EndsWith(L"')")));
    EXPECT_THAT(tooMany, AllOf(StartsWith(L"Format failed for format string 'Only %1%' (exception = '"),
                               HasSubstr(L"', type = '"), HasSubstr(L"too_many_args"), EndsWith(L"')")));
}

} // namespace Quilon_::Tests::FormatterTests
