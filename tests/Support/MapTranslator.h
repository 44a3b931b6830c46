// A translator for tests: translates the keys of a fixed table, counts the
// keys it was asked for, and while a ScopedTranslator holds it is the one
// Library::Translator() returns.
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace Quilon_::Tests {

class CMapTranslator
    : public System::Template::ObjectImpl<CMapTranslator, System::Localization::ITranslator> {
public:
    explicit CMapTranslator(std::map<std::wstring, std::wstring> table) : m_table(std::move(table)) {}

    std::wstring Translate(const std::wstring& key) override
    {
        std::wstring text;
        return TryTranslate(key, text) ? text : key;
    }
    bool TryTranslate(const std::wstring& key, std::wstring& text) override
    {
        std::lock_guard<std::mutex> lock(m_lock);
        m_requested.push_back(key);
        auto found = m_table.find(key);
        if (found == m_table.end())
            return false;
        text = found->second;
        return true;
    }
    std::vector<std::wstring> MissingTranslations() override { return {}; }

    std::vector<std::wstring> Requested()
    {
        std::lock_guard<std::mutex> lock(m_lock);
        return m_requested;
    }

private:
    std::map<std::wstring, std::wstring> m_table;
    std::mutex m_lock;
    std::vector<std::wstring> m_requested;
};

// Installs a translator of one key for the scope and restores the default
// (none set) at its end.
class ScopedTranslator {
public:
    ScopedTranslator(const std::wstring& key, const std::wstring& text)
        : m_translator(new CMapTranslator(std::map<std::wstring, std::wstring>{std::pair(key, text)})),
          m_held(m_translator)
    {
        Library::SetTranslator(m_held);
    }
    ~ScopedTranslator() { Library::SetTranslator(nullptr); }
    ScopedTranslator(const ScopedTranslator&) = delete;
    ScopedTranslator& operator=(const ScopedTranslator&) = delete;

    CMapTranslator* operator->() const { return m_translator; }

private:
    CMapTranslator* m_translator;
    System::Pointer<System::Localization::ITranslator, 1> m_held;
};

} // namespace Quilon_::Tests
