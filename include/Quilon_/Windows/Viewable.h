// Anything that a viewer can show: an image, a shape, a set of handles.
// This is the windows model's root of what is shown; viewers and windows
// join it there.
//
//   viewable->Invalidated() += NewEventHandler(viewer, &CViewer::OnInvalidated);
//   viewable->SetVisible(false);   // viewers stop drawing it, and are told
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"

namespace Quilon_::Windows {

using InvalidatedEvent = System::Event<System::Ref<System::IEventArgs>>;

class QUILON_API IViewable : public virtual System::Interface {
    QUILON_INTERFACE(IViewable)
public:
    virtual bool Visible() = 0;
    // Fires Invalidated() when the value changes.
    virtual void SetVisible(bool visible) = 0;
    // The viewers showing this object must draw it again.
    virtual InvalidatedEvent& Invalidated() = 0;
};

} // namespace Quilon_::Windows
