// Translation of the toolkit's texts. Every message literal is a key in
// English; the translator gives the text to show. A key may carry its
// default text behind ".ds.", which is shown when nobody translates it.
//
//   Library::Translator()->Translate(L"Viewer.ds.Image viewer");  // L"Image viewer"
//   Library::Translator()->MissingTranslations();                  // keys not found
//   Localization::DumpMissingTranslations();                       // to the trace manager
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Localization/TranslationRequestedEventArgs.h"

#include <string>
#include <vector>

namespace Quilon_::System::Localization {

class QUILON_API ITranslator : public virtual Interface {
    QUILON_INTERFACE(ITranslator)
public:
    // The translation of `key`; without one, its default text.
    virtual std::wstring Translate(const std::wstring& key) = 0;
    // True with the translation in `text`, or for the empty key (with `text`
    // unchanged); false for a key that nobody translates, which is then
    // listed as missing.
    virtual bool TryTranslate(const std::wstring& key, std::wstring& text) = 0;
    // The keys that found no translation so far.
    virtual std::vector<std::wstring> MissingTranslations() = 0;
    // Asked for each key, on the translating thread; a listener that knows
    // the key sets the text and marks the request handled.
    virtual Event<Pointer<ITranslationRequestedEventArgs, 1>>& TranslationRequested() = 0;
};

// Adds keys to the list of missing translations.
class QUILON_API ITranslatorInternal : public virtual Interface {
    QUILON_INTERFACE(ITranslatorInternal)
public:
    virtual void AddMissingTranslation(const std::wstring& key) = 0;
};

namespace Translator {
// Makes the default translator, which asks its listeners for each text.
extern QUILON_API Functions::Template::Function<Pointer<ITranslator, 1> (*)()> New;
} // namespace Translator

// Traces the missing keys of Library::Translator(): one line about the
// translator under "Translator.Localization", then each key under
// "Translator.Missing Translations".
QUILON_API void DumpMissingTranslations();

} // namespace Quilon_::System::Localization
