// The default translator has no translations of its own: it shows keys by
// their default text and lists them as missing.
#include "Quilon_/System/Localization/Translator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Quilon_::Tests::TranslatorTests {

using namespace Quilon_::System;
using namespace Quilon_::System::Localization;

TEST(DefaultTranslator, ShowsKeysByTheirDefaultTextAndListsEachMissingKeyOnce)
{
    Pointer<ITranslator, 1> translator = Translator::New();
    EXPECT_EQ(translator->Translate(L"Unknown key %1%"), L"Unknown key %1%");
    EXPECT_EQ(translator->Translate(L"Unknown key %1%"), L"Unknown key %1%");
    EXPECT_EQ(translator->Translate(L"Viewer.Title.ds.Image viewer"), L"Image viewer");
    std::wstring text = L"unchanged";
    EXPECT_FALSE(translator->TryTranslate(L"Unknown", text));
    // The empty key is the empty text and never missing.
    EXPECT_EQ(translator->Translate(L""), L"");
    EXPECT_TRUE(translator->TryTranslate(L"", text));
    EXPECT_EQ(text, L"unchanged");
    Pointer<ITranslatorInternal, 1>(translator)->AddMissingTranslation(L"Added");

    std::vector<std::wstring> missing = translator->MissingTranslations();
    std::sort(missing.begin(), missing.end());
    EXPECT_EQ(missing, (std::vector<std::wstring>{L"Added", L"Unknown", L"Unknown key %1%",
                                                  L"Viewer.Title.ds.Image viewer"}));
}

} // namespace Quilon_::Tests::TranslatorTests
