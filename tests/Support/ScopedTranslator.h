// A translator of one key for tests; while a ScopedTranslator lives it is
// the one Library::Translator() returns.
//
//   Tests::ScopedTranslator german(L"Open", L"Öffnen");
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"

#include <string>
#include <vector>

namespace Quilon_::Tests {

class COneKeyTranslator
    : public System::Template::ObjectImpl<COneKeyTranslator, System::Localization::ITranslator> {
public:
    COneKeyTranslator(std::wstring key, std::wstring text) : m_key(std::move(key)), m_text(std::move(text)) {}

    std::wstring Translate(const std::wstring& key) override
    {
        std::wstring text;
        return TryTranslate(key, text) ? text : key;
    }
    bool TryTranslate(const std::wstring& key, std::wstring& text) override
    {
        if (key != m_key)
            return false;
        text = m_text;
        return true;
    }
    std::vector<std::wstring> MissingTranslations() override { return {}; }
    System::Event<System::Pointer<System::Localization::ITranslationRequestedEventArgs, 1>>&
    TranslationRequested() override
    {
        return m_requested;
    }

private:
    std::wstring m_key, m_text;
    System::Event<System::Pointer<System::Localization::ITranslationRequestedEventArgs, 1>> m_requested{this};
};

// Installs a COneKeyTranslator for the scope; at its end none is set.
class ScopedTranslator {
public:
    ScopedTranslator(const std::wstring& key, const std::wstring& text)
        : m_held(new COneKeyTranslator(key, text))
    {
        Library::SetTranslator(m_held);
    }
    ~ScopedTranslator() { Library::SetTranslator(nullptr); }

private:
    System::Pointer<System::Localization::ITranslator, 1> m_held;
};

} // namespace Quilon_::Tests
