// A listener of the eight events of a collection or dictionary, for the
// suites of collections, dictionaries and the rules that stand on them.
//
//   Pointer<CCollectionListener, 1> listener(new CCollectionListener);
//   listener->ListenTo(*collection);
//   listener->onCall = [](const std::string& event, Args& args) { args->SetAllowed(false); };
//   collection->Add(thing);   // listener->calls == {"ItemInserting 0"}; raises
#pragma once

#include "Quilon_/System/Collections/CollectionEvents.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/ObjectImpl.h"

#include "KernelDoubles.h"

#include <functional>
#include <string>
#include <vector>

namespace Quilon_::Tests::Collections {

using Args = System::Pointer<System::Collections::ICollectionEventArgs, 1>;

class CCollectionListener
    : public System::Template::ObjectImpl<CCollectionListener, Kernel::IThing, System::EventTarget> {
public:
    int Value() override { return 0; }
    void OnEventTargetReset() override {}

    // Connects to all eight events.
    void ListenTo(System::Collections::ICollectionEvents& events)
    {
        events.ItemInserting() += System::NewEventHandler(this, &CCollectionListener::OnItemInserting);
        events.ItemInserted() += System::NewEventHandler(this, &CCollectionListener::OnItemInserted);
        events.ItemRemoving() += System::NewEventHandler(this, &CCollectionListener::OnItemRemoving);
        events.ItemRemoved() += System::NewEventHandler(this, &CCollectionListener::OnItemRemoved);
        events.ItemModifying() += System::NewEventHandler(this, &CCollectionListener::OnItemModifying);
        events.ItemModified() += System::NewEventHandler(this, &CCollectionListener::OnItemModified);
        events.Clearing() += System::NewEventHandler(this, &CCollectionListener::OnClearing);
        events.Cleared() += System::NewEventHandler(this, &CCollectionListener::OnCleared);
    }

    // Each call as "<event> <event type>".
    std::vector<std::string> calls;
    // Runs after the call is noted; may veto, throw or look at the args.
    std::function<void(const std::string& event, Args& args)> onCall;

private:
    void Note(const char* event, Args& args)
    {
        calls.push_back(std::string(event) + " " + std::to_string(args->EventType()));
        if (onCall)
            onCall(event, args);
    }
    void OnItemInserting(System::Interface*, Args args) { Note("ItemInserting", args); }
    void OnItemInserted(System::Interface*, Args args) { Note("ItemInserted", args); }
    void OnItemRemoving(System::Interface*, Args args) { Note("ItemRemoving", args); }
    void OnItemRemoved(System::Interface*, Args args) { Note("ItemRemoved", args); }
    void OnItemModifying(System::Interface*, Args args) { Note("ItemModifying", args); }
    void OnItemModified(System::Interface*, Args args) { Note("ItemModified", args); }
    void OnClearing(System::Interface*, Args args) { Note("Clearing", args); }
    void OnCleared(System::Interface*, Args args) { Note("Cleared", args); }
};

// Vetoes every before-event with `reason`.
inline std::function<void(const std::string&, Args&)> Veto(std::wstring reason)
{
    return [reason](const std::string&, Args& args) {
        args->SetAllowed(false);
        args->SetReason(reason);
    };
}

} // namespace Quilon_::Tests::Collections
