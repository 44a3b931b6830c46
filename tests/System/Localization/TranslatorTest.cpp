// The default translator asks for each text, honours a request that was
// handled, shows other keys by their default text and lists them as
// missing; the missing keys can be traced.
#include "Quilon_/System/Localization/Translator.h"
#include "Quilon_/Library.h"

#include "../../Support/EventDoubles.h"

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

TEST(DefaultTranslator, UsesTheTextOfARequestThatAListenerHandled)
{
    Pointer<ITranslator, 1> translator = Translator::New();
    using Recorder = Events::CArgsRecorder<Pointer<ITranslationRequestedEventArgs, 1>>;
    auto* german = new Recorder;
    Events::Thing heldgerman(german);
    german->onCall = [](Pointer<ITranslationRequestedEventArgs, 1>& request) {
        if (request->Key() == L"Open") {
            request->SetText(L"Öffnen");
            request->SetHandled(true);
        }
    };
    translator->TranslationRequested() += german->Handler();

    EXPECT_EQ(translator->Translate(L"Open"), L"Öffnen");
    EXPECT_EQ(translator->Translate(L"Close.ds.Schließen"), L"Schließen");
    EXPECT_EQ(german->received.size(), 2u);
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
    // The default trace manager, heard through its event.
    using Recorder = Events::CArgsRecorder<Pointer<Diagnostic::ITracingEventArgs, 1>>;
    auto* trace = new Recorder;
    Events::Thing heldtrace(trace);
    Pointer<Diagnostic::ITraceManager, 1> manager = Diagnostic::TraceManager::New();
    manager->Traced() += trace->Handler();
    Library::SetTraceManager(manager);
    Library::SetTranslator(Translator::New());
    Library::Translator()->Translate(L"Second");
    Library::Translator()->Translate(L"First.ds.Erste");
    DumpMissingTranslations();
    Pointer<ITranslator, 1> used = Library::Translator();
    Library::SetTranslator(nullptr);
    Library::SetTraceManager(nullptr);

    using Line = std::pair<std::wstring, std::wstring>;
    std::vector<Line> traced;
    for (const auto& args : trace->received)
        traced.emplace_back(args->Message(), args->Category());
    EXPECT_EQ(traced, (std::vector<Line>{{L"Missing translations: 2", L"Translator.Localization"},
                                         {L"First.ds.Erste", L"Translator.Missing Translations"},
                                         {L"Second", L"Translator.Missing Translations"}}));
    // The texts of the dump went through the translator like all text.
    EXPECT_EQ(used->MissingTranslations().size(), 5u);
}

} // namespace Quilon_::Tests::TranslatorTests
