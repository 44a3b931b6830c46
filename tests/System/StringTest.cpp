#include "Quilon_/Library.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include "../Support/MapTranslator.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <string>

namespace Quilon_::Tests::StringTests {

using namespace Quilon_::System;

// The message of a failed conversion, which is raised by the conversion.
template <class F>
std::wstring ConversionFailure(F convert)
{
    Pointer<IException, 0> e = Raised(convert);
    if (!e)
        return L"";
    EXPECT_EQ(e->File(), L"System/String.cpp");
    return e->Message();
}

// ---------------------------------------------------------------------------
// LIString

TEST(LIString, DefaultIsEmptyAndLocalizableAndComparisonSeesBothFields)
{
    LIString empty;
    EXPECT_EQ(empty.Value(), L"");
    EXPECT_TRUE(empty.IsLocalizable());

    EXPECT_TRUE(LIString(L"a") == LIString(std::wstring(L"a"), true));
    EXPECT_TRUE(LIString(L"a", false) != LIString(L"a", true));
    EXPECT_TRUE(LIString(L"a") != LIString(L"b"));
}

TEST(LIString, DefaultTextIsWhatStandsBehindTheMarker)
{
    EXPECT_EQ(LIString(L"Viewer.ds.Image viewer").DefaultLocalizedString(), L"Image viewer");
    EXPECT_EQ(LIString(L"Viewer.ds.").DefaultLocalizedString(), L"");
    EXPECT_EQ(LIString(L"No marker").DefaultLocalizedString(), L"No marker");
    EXPECT_EQ(LIString(L"Viewer.ds").DefaultLocalizedString(), L"Viewer.ds");
    // A string that is not localizable is shown as it is.
    EXPECT_EQ(LIString(L"Viewer.ds.Image viewer", false).DefaultLocalizedString(), L"Viewer.ds.Image viewer");
}

TEST(LIString, LocalizedStringAsksTheTranslatorOnlyWhenLocalizable)
{
    ScopedTranslator translator(L"Open", L"Öffnen");
    EXPECT_EQ(LIString(L"Open").LocalizedString(), L"Öffnen");
    EXPECT_EQ(translator->Requested().size(), 1u);

    EXPECT_EQ(LIString(L"Open", false).LocalizedString(), L"Open");
    EXPECT_EQ(translator->Requested().size(), 1u);
}

TEST(LIString, LocalizedStringWithoutTranslationsIsTheDefaultText)
{
    EXPECT_EQ(LIString(L"Viewer.ds.Image viewer").LocalizedString(), L"Image viewer");
    EXPECT_EQ(LIString(L"Plain key").LocalizedString(), L"Plain key");
}

// ---------------------------------------------------------------------------
// Conversions between UTF-8 and wide text

TEST(StringConversion, RoundTripsEveryPlane)
{
    const std::string utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    const std::wstring wide = L"a\u00E9\u20AC\U0001F600";
    EXPECT_EQ(ToString(utf8), wide);
    EXPECT_EQ(ToAnsi(wide), utf8);
    EXPECT_EQ(ToString(""), L"");
    EXPECT_EQ(ToAnsi(L""), "");
    // The largest scalar value is still one.
    EXPECT_EQ(ToString(ToAnsi(L"\U0010FFFF")), L"\U0010FFFF");
}

TEST(StringConversion, MalformedUtf8Raises)
{
    const char* const malformed[] = {
        "\xFF",             // never a byte of UTF-8
        "ab\x80",           // continuation without a lead
        "\xC0\xAF",         // overlong form of '/'
        "\xE0\x80\xAF",     // overlong, three bytes
        "\xE2\x82",         // cut off
        "\xED\xA0\x80",     // a surrogate
        "\xF4\x90\x80\x80", // past U+10FFFF
    };
    for (const char* text : malformed) {
        SCOPED_TRACE(testing::PrintToString(std::string(text)));
        EXPECT_EQ(ConversionFailure([&] { ToString(text); }), L"MultiByteToWideChar failed (error code = 84)");
    }
}

TEST(StringConversion, WideTextThatIsNoUnicodeRaises)
{
    for (wchar_t value : {wchar_t(0xD800), wchar_t(0xDFFF), wchar_t(0x110000)}) {
        std::wstring text = L"ok";
        text += value;
        SCOPED_TRACE(static_cast<unsigned>(value));
        EXPECT_EQ(ConversionFailure([&] { ToAnsi(text); }), L"WideCharToMultiByte failed (error code = 84)");
    }
}

} // namespace Quilon_::Tests::StringTests
