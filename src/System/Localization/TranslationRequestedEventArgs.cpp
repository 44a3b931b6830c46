#include "Quilon_/System/Localization/TranslationRequestedEventArgs.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System::Localization {

QUILON_DEFINE_INTERFACE_TYPE(ITranslationRequestedEventArgs,
                             L"Quilon_::System::Localization::ITranslationRequestedEventArgs", IEventArgs)

namespace {

class CTranslationRequestedEventArgs
    : public Template::ObjectImpl<CTranslationRequestedEventArgs, ITranslationRequestedEventArgs> {
public:
    explicit CTranslationRequestedEventArgs(const std::wstring& key) : m_key(key) {}

    std::wstring Key() override { return m_key; }
    std::wstring Text() override { return m_text; }
    void SetText(const std::wstring& text) override { m_text = text; }
    bool Handled() override { return m_handled; }
    void SetHandled(bool handled) override { m_handled = handled; }

private:
    std::wstring m_key;
    std::wstring m_text;
    bool m_handled = false;
};

Pointer<ITranslationRequestedEventArgs, 1> NewTranslationRequestedEventArgs(const std::wstring& key)
{
    return Pointer<ITranslationRequestedEventArgs, 1>(new CTranslationRequestedEventArgs(key));
}

} // namespace

// Constructed with the other managers' operators, before any code that
// could raise and so translate.
__attribute__((init_priority(101)))
Functions::Template::Function<Pointer<ITranslationRequestedEventArgs, 1> (*)(const std::wstring&)>
    TranslationRequestedEventArgs::New(&NewTranslationRequestedEventArgs);

} // namespace Quilon_::System::Localization
