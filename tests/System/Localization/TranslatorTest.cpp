#include "Quilon_/System/Localization/Translator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

namespace Quilon_::Tests::TranslatorTests {

using namespace Quilon_::System;
using namespace Quilon_::System::Localization;

bool Contains(const std::vector<std::wstring>& keys, const std::wstring& key)
{
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

// The default translator has no translations of its own.
class DefaultTranslator : public ::testing::Test {
protected:
    Pointer<ITranslator, 1> m_translator = Translator::New();
};

TEST_F(DefaultTranslator, UnknownKeyIsShownAsItIsAndListedAsMissingOnce)
{
    EXPECT_EQ(m_translator->Translate(L"Unknown key %1%"), L"Unknown key %1%");
    EXPECT_EQ(m_translator->Translate(L"Unknown key %1%"), L"Unknown key %1%");
    std::vector<std::wstring> missing = m_translator->MissingTranslations();
    EXPECT_EQ(std::count(missing.begin(), missing.end(), L"Unknown key %1%"), 1);
}

TEST_F(DefaultTranslator, KeyWithDefaultTextShowsTheTextAndIsListedByTheWholeKey)
{
    EXPECT_EQ(m_translator->Translate(L"Viewer.Title.ds.Image viewer"), L"Image viewer");
    EXPECT_TRUE(Contains(m_translator->MissingTranslations(), L"Viewer.Title.ds.Image viewer"));
}

TEST_F(DefaultTranslator, EmptyKeyIsEmptyTextAndNeverMissing)
{
    EXPECT_EQ(m_translator->Translate(L""), L"");
    std::wstring text = L"unchanged";
    EXPECT_TRUE(m_translator->TryTranslate(L"", text));
    EXPECT_EQ(text, L"unchanged");
    EXPECT_TRUE(m_translator->MissingTranslations().empty());
}

TEST_F(DefaultTranslator, TryTranslateFailsForUnknownKeys)
{
    std::wstring text;
    EXPECT_FALSE(m_translator->TryTranslate(L"Unknown", text));
    EXPECT_TRUE(Contains(m_translator->MissingTranslations(), L"Unknown"));
}

TEST_F(DefaultTranslator, MissingKeysCanBeAddedThroughTheInternalInterface)
{
    Pointer<ITranslatorInternal, 0> internal(m_translator);
    ASSERT_TRUE(internal);
    internal->AddMissingTranslation(L"Added");
    EXPECT_TRUE(Contains(m_translator->MissingTranslations(), L"Added"));
}

TEST_F(DefaultTranslator, TranslatesFromManyThreadsAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int keysPerThread = 200;
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([&, t] {
            for (int k = 0; k < keysPerThread; ++k) {
                std::wstring key = L"Key " + std::to_wstring(t) + L"." + std::to_wstring(k);
                EXPECT_EQ(m_translator->Translate(key), key);
                m_translator->MissingTranslations();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(m_translator->MissingTranslations().size(), std::size_t(threadCount * keysPerThread));
}

} // namespace Quilon_::Tests::TranslatorTests
