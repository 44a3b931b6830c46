// What the translator asks its listeners for: the text of one key. A
// listener that knows the text sets it and marks the request handled; the
// translator then uses that text.
//
//   Pointer<ITranslationRequestedEventArgs> request = TranslationRequestedEventArgs::New(L"Open");
//   request->SetText(L"Öffnen");
//   request->SetHandled(true);
#pragma once

#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Function.h"

#include <string>

namespace Quilon_::System::Localization {

class QUILON_API ITranslationRequestedEventArgs : public virtual IEventArgs {
    QUILON_INTERFACE(ITranslationRequestedEventArgs)
public:
    virtual std::wstring Key() = 0;
    virtual std::wstring Text() = 0;
    virtual void SetText(const std::wstring& text) = 0;
    virtual bool Handled() = 0;
    virtual void SetHandled(bool handled) = 0;
};

namespace TranslationRequestedEventArgs {
// A request for `key`: no text, not handled.
extern QUILON_API Functions::Template::Function<Pointer<ITranslationRequestedEventArgs, 1> (*)(
    const std::wstring& key)>
    New;
} // namespace TranslationRequestedEventArgs

} // namespace Quilon_::System::Localization
