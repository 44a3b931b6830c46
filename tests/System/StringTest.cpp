// Strict conversions between UTF-8 and wide text, and localizable strings.
#include "Quilon_/System/String.h"
#include "Quilon_/Library.h"

#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "../Support/ScopedTranslator.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <string>

namespace Quilon_::Tests::StringTests {

using namespace Quilon_::System;

using StringConversion = RaisingTest;

TEST_F(StringConversion, Utf8ToWideRoundTripsEveryPlaneAndRefusesMalformedInput)
{
    EXPECT_EQ(ToString("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), L"a\u00E9\u20AC\U0001F600");
    EXPECT_EQ(ToString(ToAnsi(L"\U0010FFFF")), L"\U0010FFFF");
    EXPECT_EQ(ToString(""), L"");
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
        EXPECT_EQ(RaisedMessage([&] { ToString(text); }), L"MultiByteToWideChar failed (error code = 84)");
    }
}

TEST_F(StringConversion, WideToUtf8RefusesValuesThatAreNoUnicode)
{
    EXPECT_EQ(ToAnsi(L"a\u00E9\u20AC\U0001F600"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    for (wchar_t value : {wchar_t(0xD800), wchar_t(0xDFFF), wchar_t(0x110000)}) {
        SCOPED_TRACE(static_cast<unsigned>(value));
        EXPECT_EQ(RaisedMessage([&] { ToAnsi(std::wstring(L"ok") + value); }),
                  L"WideCharToMultiByte failed (error code = 84)");
    }
}

// Run out of address space in a child: the wide copy of 64 MiB of text
// needs 256 MiB, and the child may take 128 MiB more than it holds.
TEST_F(StringConversion, AConversionWithoutMemoryForItsResultRaisesOutOfMemory)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the sanitizers' allocators end the process instead of failing";
#endif
    InChildProcess([] {
        const std::string text(std::size_t(64) << 20, 'a');
        unsigned long pages = 0;
        if (std::FILE* statm = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(statm, "%lu", &pages) != 1)
                pages = 0;
            std::fclose(statm);
        }
        ASSERT_GT(pages, 0u);
        rlimit limit{};
        ASSERT_EQ(::getrlimit(RLIMIT_AS, &limit), 0);
        limit.rlim_cur = pages * ::sysconf(_SC_PAGESIZE) + (rlim_t(128) << 20);
        ASSERT_EQ(::setrlimit(RLIMIT_AS, &limit), 0);
        EXPECT_EQ(RaisedMessage([&] { ToString(text); }), L"Out of memory");
    });
}

TEST(LIString, LocalizableTextIsTranslatedOrShownByItsDefaultText)
{
    EXPECT_EQ(LIString(L"Viewer.ds.Image viewer").LocalizedString(), L"Image viewer");
    EXPECT_EQ(LIString(L"Viewer.ds.Image viewer", false).LocalizedString(), L"Viewer.ds.Image viewer");

    ScopedTranslator german(L"Open", L"Öffnen");
    EXPECT_EQ(LIString(L"Open").LocalizedString(), L"Öffnen");
    EXPECT_EQ(LIString(L"Open", false).LocalizedString(), L"Open");
}

} // namespace Quilon_::Tests::StringTests
