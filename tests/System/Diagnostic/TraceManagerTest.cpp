#include "Quilon_/System/Diagnostic/TraceManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::TraceManagerTests {

using namespace Quilon_::System::Diagnostic;

std::vector<std::wstring> lines;

void Record(const std::wstring& text)
{
    lines.push_back(text);
}

TEST(DebugOutput, SinkCanBeReplacedAndNullRestoresTheDefault)
{
    lines.clear();
    DebugOutputSink previous = SetDebugOutputSink(&Record);
    OutputDebugString(L"caught \u00E9");
    EXPECT_EQ(lines, std::vector<std::wstring>{L"caught \u00E9"});

    // Null is not stored: it brings back the standard-error sink.
    EXPECT_EQ(SetDebugOutputSink(nullptr), &Record);
    DebugOutputSink standardError = SetDebugOutputSink(previous);
    EXPECT_NE(standardError, nullptr);
    EXPECT_NE(standardError, &Record);
    // The default sink copes with text that is no valid Unicode.
    EXPECT_NO_THROW(standardError(std::wstring(1, wchar_t(0xD800))));
}

} // namespace Quilon_::Tests::TraceManagerTests
