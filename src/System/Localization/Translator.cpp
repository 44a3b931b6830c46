#include "Quilon_/System/Localization/Translator.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <mutex>
#include <set>

namespace Quilon_::System::Localization {

QUILON_DEFINE_INTERFACE_TYPE(ITranslator, L"Quilon_::System::Localization::ITranslator", Interface)
QUILON_DEFINE_INTERFACE_TYPE(ITranslatorInternal, L"Quilon_::System::Localization::ITranslatorInternal", Interface)

namespace {

// The default translator: no translations of its own, so every key shows
// its default text (the part behind ".ds.", or the key itself) and is
// listed as missing.
class CTranslator : public Template::ObjectImpl<CTranslator, ITranslator, ITranslatorInternal> {
public:
    std::wstring Translate(const std::wstring& key) override
    {
        std::wstring text;
        if (TryTranslate(key, text))
            return text;
        return LIString(key, true).DefaultLocalizedString();
    }

    bool TryTranslate(const std::wstring& key, std::wstring&) override
    {
        if (key.empty())
            return true;
        AddMissingTranslation(key);
        return false;
    }

    std::vector<std::wstring> MissingTranslations() override
    {
        std::lock_guard<std::mutex> lock(m_missingLock);
        return std::vector<std::wstring>(m_missing.begin(), m_missing.end());
    }

    void AddMissingTranslation(const std::wstring& key) override
    {
        std::lock_guard<std::mutex> lock(m_missingLock);
        m_missing.insert(key);
    }

private:
    std::mutex m_missingLock;
    std::set<std::wstring> m_missing;
};

Pointer<ITranslator, 1> NewTranslator()
{
    return Pointer<ITranslator, 1>(new CTranslator);
}

} // namespace

__attribute__((init_priority(101)))
Functions::Template::Function<Pointer<ITranslator, 1> (*)()> Translator::New(&NewTranslator);

} // namespace Quilon_::System::Localization
