// Mouse and key event arguments, behind MouseEventArgs::New and
// KeyEventArgs::New.
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/Windows/KeyEventArgs.h"
#include "Quilon_/Windows/MouseEventArgs.h"

namespace Quilon_::Basic::Windows {

using namespace Quilon_::Windows;
using System::Ref;

namespace {

class CMouseEventArgs : public System::Template::ObjectImpl<CMouseEventArgs, IMouseEventArgs> {
public:
    CMouseEventArgs(MouseEventTypeEnum type, MouseButtonEnum button, ModifierKeysEnum modifiers, int x, int y,
                    int clicks, int delta)
        : m_type(type), m_button(button), m_modifiers(modifiers), m_x(x), m_y(y), m_clicks(clicks),
          m_delta(delta)
    {
    }

    MouseEventTypeEnum EventType() override { return m_type; }
    MouseButtonEnum Button() override { return m_button; }
    ModifierKeysEnum Modifiers() override { return m_modifiers; }
    int X() override { return m_x; }
    int Y() override { return m_y; }
    int Clicks() override { return m_clicks; }
    int Delta() override { return m_delta; }

private:
    MouseEventTypeEnum m_type;
    MouseButtonEnum m_button;
    ModifierKeysEnum m_modifiers;
    int m_x;
    int m_y;
    int m_clicks;
    int m_delta;
};

class CKeyEventArgs : public System::Template::ObjectImpl<CKeyEventArgs, IKeyEventArgs> {
public:
    CKeyEventArgs(KeyEventTypeEnum type, unsigned short key, ModifierKeysEnum modifiers)
        : m_type(type), m_key(key), m_modifiers(modifiers)
    {
    }

    KeyEventTypeEnum EventType() override { return m_type; }
    unsigned short Key() override { return m_key; }
    ModifierKeysEnum Modifiers() override { return m_modifiers; }
    bool Handled() override { return m_handled; }
    void SetHandled(bool handled) override { m_handled = handled; }

private:
    KeyEventTypeEnum m_type;
    unsigned short m_key;
    ModifierKeysEnum m_modifiers;
    bool m_handled = false;
};

Ref<IMouseEventArgs> NewMouseEventArgs(MouseEventTypeEnum type, MouseButtonEnum button,
                                       ModifierKeysEnum modifiers, int x, int y, int clicks, int delta)
{
    return Ref<IMouseEventArgs>(new CMouseEventArgs(type, button, modifiers, x, y, clicks, delta));
}

Ref<IKeyEventArgs> NewKeyEventArgs(KeyEventTypeEnum type, unsigned short key, ModifierKeysEnum modifiers)
{
    return Ref<IKeyEventArgs>(new CKeyEventArgs(type, key, modifiers));
}

void RegisterEventArgs()
{
    MouseEventArgs::New.Register(L"Mouse event args", &NewMouseEventArgs);
    KeyEventArgs::New.Register(L"Key event args", &NewKeyEventArgs);
}

const System::Template::Initializer<::Library> eventArgs(&RegisterEventArgs, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Windows
