#include "Quilon_/System/Localization/Translator.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Formatter.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <mutex>
#include <set>

namespace Quilon_::System::Localization {

QUILON_DEFINE_INTERFACE_TYPE(ITranslator, L"Quilon_::System::Localization::ITranslator", Interface)
QUILON_DEFINE_INTERFACE_TYPE(ITranslatorInternal, L"Quilon_::System::Localization::ITranslatorInternal", Interface)

namespace {

// Has no translations of its own: it asks the listeners of its request for
// each text, and a key that none of them knows shows its default text (the
// part behind ".ds.", or the key itself) and is listed as missing.
class CTranslator : public Template::ObjectImpl<CTranslator, ITranslator, ITranslatorInternal> {
public:
    std::wstring Translate(const std::wstring& key) override
    {
        std::wstring text;
        if (TryTranslate(key, text))
            return text;
        return LIString(key, true).DefaultLocalizedString();
    }

    bool TryTranslate(const std::wstring& key, std::wstring& text) override
    {
        if (key.empty())
            return true;
        Pointer<ITranslationRequestedEventArgs, 1> request = TranslationRequestedEventArgs::New(key);
        m_translationRequested.Fire(request);
        if (request->Handled()) {
            text = request->Text();
            return true;
        }
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

    Event<Pointer<ITranslationRequestedEventArgs, 1>>& TranslationRequested() override
    {
        return m_translationRequested;
    }

private:
    Event<Pointer<ITranslationRequestedEventArgs, 1>> m_translationRequested{this};
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

void DumpMissingTranslations()
{
    Pointer<ITranslator, 1> translator = Library::Translator();
    // Taken before the texts below are translated, which may add keys.
    std::vector<std::wstring> missing = translator->MissingTranslations();
    Pointer<Diagnostic::ITraceManager, 1> trace = Library::TraceManager();
    std::wstring about =
        System::Detail::Formatter(translator->Translate(L"Missing translations: %1%")) % missing.size();
    trace->Trace(about, translator->Translate(L"Translator.Localization"));
    std::wstring category = translator->Translate(L"Translator.Missing Translations");
    for (const std::wstring& key : missing)
        trace->Trace(key, category);
}

} // namespace Quilon_::System::Localization
