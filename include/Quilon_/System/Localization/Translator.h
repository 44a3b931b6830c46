// Translation of the toolkit's texts. Every message literal is a key in
// English; the translator gives the text to show.
//
//   Library::Translator()->Translate(L"Viewer.ds.Image viewer");  // L"Image viewer"
//   Library::Translator()->MissingTranslations();                  // keys not found
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <string>
#include <vector>

namespace Quilon_::System::Localization {

class QUILON_API ITranslator : public virtual Interface {
    QUILON_INTERFACE(ITranslator)
public:
    virtual std::wstring Translate(const std::wstring& key) = 0;
    virtual bool TryTranslate(const std::wstring& key, std::wstring& text) = 0;
    virtual std::vector<std::wstring> MissingTranslations() = 0;
};

// Adds keys to the list of missing translations.
class QUILON_API ITranslatorInternal : public virtual Interface {
    QUILON_INTERFACE(ITranslatorInternal)
public:
    virtual void AddMissingTranslation(const std::wstring& key) = 0;
};

namespace Translator {
// Makes the default translator.
extern QUILON_API Functions::Template::Function<Pointer<ITranslator, 1> (*)()> New;
} // namespace Translator

} // namespace Quilon_::System::Localization
