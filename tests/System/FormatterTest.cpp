#include "Quilon_/System/Formatter.h"
#include "Quilon_/System/Interface.h"
#include "Quilon_/System/Type.h"

#include <gtest/gtest.h>

#include <boost/format.hpp>
#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <string>

namespace Quilon_::Tests::FormatterTests {

using namespace Quilon_::System;
using Detail::Formatter;

// What boost::wformat itself reports for `format` fed `feed`: the what() and
// the demangled class of the exception it throws.
template <class Feed>
std::pair<std::wstring, std::wstring> BoostFailure(const std::wstring& format, Feed feed)
{
    try {
        boost::wformat f(format);
        feed(f);
        static_cast<void>(f.str());
    } catch (const std::exception& e) {
        int status = 0;
        std::unique_ptr<char, void (*)(void*)> name(
            abi::__cxa_demangle(typeid(e).name(), nullptr, nullptr, &status), std::free);
        std::string what = e.what();
        std::string type = name.get();
        return {std::wstring(what.begin(), what.end()), std::wstring(type.begin(), type.end())};
    }
    return {};
}

std::wstring FailureText(const std::wstring& format, const std::pair<std::wstring, std::wstring>& failure)
{
    return L"Format failed for format string '" + format + L"' (exception = '" + failure.first + L"', type = '" +
           failure.second + L"')";
}

// ---------------------------------------------------------------------------
// Filling placeholders

TEST(FormatterText, PlaceholdersAreFilledByPositionAndMayRepeat)
{
    std::wstring text = Formatter(L"%2% before %1%, %2% again, 100%%") % 7 % L"x";
    EXPECT_EQ(text, L"x before 7, x again, 100%");
}

TEST(FormatterText, ArgumentsOfTheToolkitsTypesArePresentable)
{
    std::int64_t big = std::int64_t(1) << 40;
    std::wstring text = Formatter(L"%1%|%2%|%3%|%4%|%5%") % big % 2.5 % std::string("narrow") %
                        Interface::GetType() % std::wstring(L"wide");
    EXPECT_EQ(text, L"1099511627776|2.5|narrow|Quilon_::System::Interface|wide");
    // Narrow literals are UTF-8.
    EXPECT_EQ(std::wstring(Formatter(L"%1%") % "caf\xC3\xA9"), L"caf\u00E9");
}

TEST(FormatterText, NarrowTextThatIsNoValidUtf8IsShownNotRaised)
{
    // Narrow texts often come from foreign what() strings.
    std::wstring text;
    EXPECT_NO_THROW(text = Formatter(L"<%1%>") % std::string("a\xFF" "b"));
    EXPECT_EQ(text, L"<a\uFFFDb>");
}

TEST(FormatterText, LocationIsKept)
{
    Formatter formatter(L"m", L"void f()", L"System/X.cpp", 12);
    EXPECT_EQ(formatter.Function(), L"void f()");
    EXPECT_EQ(formatter.File(), L"System/X.cpp");
    EXPECT_EQ(formatter.Line(), 12);
    Formatter bare(L"m");
    EXPECT_EQ(bare.Function(), L"");
    EXPECT_EQ(bare.File(), L"");
    EXPECT_EQ(bare.Line(), 0);
}

// ---------------------------------------------------------------------------
// Formats that do not fit their arguments

TEST(FormatterFailure, TooFewArgumentsGiveTheFailureTextInsteadOfThrowing)
{
    const std::wstring format = L"Between %1% and %2%";
    std::wstring text;
    EXPECT_NO_THROW(text = Formatter(format) % 1);
    auto failure = BoostFailure(format, [](boost::wformat& f) { f % 1; });
    EXPECT_NE(failure.second.find(L"too_few_args"), std::wstring::npos);
    EXPECT_EQ(text, FailureText(format, failure));
}

TEST(FormatterFailure, TooManyArgumentsGiveTheFailureTextInsteadOfThrowing)
{
    const std::wstring format = L"Only %1%";
    std::wstring text;
    EXPECT_NO_THROW(text = Formatter(format) % 1 % 2 % 3);
    auto failure = BoostFailure(format, [](boost::wformat& f) { f % 1 % 2; });
    EXPECT_NE(failure.second.find(L"too_many_args"), std::wstring::npos);
    EXPECT_EQ(text, FailureText(format, failure));
}

TEST(FormatterFailure, MalformedFormatGivesTheFailureTextInsteadOfThrowing)
{
    const std::wstring format = L"Broken %";
    std::wstring text;
    EXPECT_NO_THROW(text = Formatter(format) % 1);
    auto failure = BoostFailure(format, [](boost::wformat&) {});
    EXPECT_NE(failure.second.find(L"bad_format_string"), std::wstring::npos);
    EXPECT_EQ(text, FailureText(format, failure));
}

} // namespace Quilon_::Tests::FormatterTests
