// The default translator asks for each text, honours a request that was
// handled, shows other keys by their default text and lists them as
// missing; the missing keys can be traced.
#include "Quilon_/System/Localization/Translator.h"
#include "Quilon_/Library.h"

#include "../../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <utility>
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

// Requests for "Open" arrive already answered, as a listener would leave them.
Pointer<ITranslationRequestedEventArgs, 1> AnsweredRequest(const std::wstring& key)
{
    Pointer<ITranslationRequestedEventArgs, 1> request =
        TranslationRequestedEventArgs::New.Implementations().back().function(key);
    if (key == L"Open") {
        request->SetText(L"Öffnen");
        request->SetHandled(true);
    }
    return request;
}

TEST(DefaultTranslator, UsesTheTextOfAHandledRequest)
{
    Pointer<ITranslator, 1> translator = Translator::New();
    TranslationRequestedEventArgs::New.Register(&AnsweredRequest);
    std::wstring open = translator->Translate(L"Open");
    std::wstring close = translator->Translate(L"Close.ds.Schließen");
    TranslationRequestedEventArgs::New.Unregister(&AnsweredRequest);

    EXPECT_EQ(open, L"Öffnen");
    EXPECT_EQ(close, L"Schließen");
    EXPECT_EQ(translator->MissingTranslations(), std::vector<std::wstring>{L"Close.ds.Schließen"});
}

TEST(DefaultTranslator, KeepsTheMissingKeysOfAllThreads)
{
    Pointer<ITranslator, 1> translator = Translator::New();
    auto translateMany = [&](std::wstring prefix) {
        for (int i = 0; i < 200; ++i)
            translator->Translate(prefix + std::to_wstring(i % 50));
    };
    std::thread other(translateMany, L"theirs ");
    translateMany(L"ours ");
    other.join();
    EXPECT_EQ(translator->MissingTranslations().size(), 100u);
}

TEST(DumpMissingTranslations, TracesTheKeysMissingBeforeTheDump)
{
    auto* trace = new Kernel::CRecordingTrace;
    Pointer<Diagnostic::ITraceManager, 1> held(trace);
    Library::SetTraceManager(held);
    Library::SetTranslator(Translator::New());
    Library::Translator()->Translate(L"Second");
    Library::Translator()->Translate(L"First.ds.Erste");
    DumpMissingTranslations();
    Pointer<ITranslator, 1> used = Library::Translator();
    Library::SetTranslator(nullptr);
    Library::SetTraceManager(nullptr);

    using Line = std::pair<std::wstring, std::wstring>;
    EXPECT_EQ(trace->traced, (std::vector<Line>{{L"Missing translations: 2", L"Translator.Localization"},
                                                {L"First.ds.Erste", L"Translator.Missing Translations"},
                                                {L"Second", L"Translator.Missing Translations"}}));
    // The texts of the dump went through the translator like all text.
    EXPECT_EQ(used->MissingTranslations().size(), 5u);
}

} // namespace Quilon_::Tests::TranslatorTests
