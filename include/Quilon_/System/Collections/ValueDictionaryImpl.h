// The one implementation of the dictionary protocol, on a hash map.
//
// It serves IValueDictionary<K,T> and IDictionary<K,T> alike, the values
// being what the map holds:
//
//   class CFactoryDictionary
//       : public System::Template::ObjectImpl<CFactoryDictionary,
//             Template::IValueDictionaryImpl<IFactoryDictionary, std::unordered_map<std::wstring, Factory>>> {};
//
// Changes fire the eight events of collections with keyed args (Index() is
// -1, Key() holds the key) and can be vetoed as there; unlike a
// collection's, the read-only test comes before everything else, and a
// duplicate key is found only after the before-event. No lock is taken.
#pragma once

#include "Quilon_/System/Collections/CollectionEvents.h"
#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/Raise.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System::Collections::Template {

namespace Detail {
// The failures of dictionaries, raised from one source file.
[[noreturn]] QUILON_API void RaiseDictionaryReadOnly();
// Raises a text that is already translated and formatted.
[[noreturn]] QUILON_API void RaiseDictionaryMessage(const std::wstring& text);

// The translated `format` with `argument` in %1%.
template <class A>
std::wstring DictionaryText(const wchar_t* format, const A& argument)
{
    return System::Detail::Formatter(System::Detail::TranslateMessage(format)) % argument;
}
} // namespace Detail

template <class I, class Map>
class IValueDictionaryImpl : public I, public ICollectionEventsImpl<ICollectionEvents>, public IDisableEvents {
public:
    using Key = typename Map::key_type;
    using Value = typename Map::mapped_type;
    using Args = Pointer<ICollectionEventArgs, 1>;

    std::int64_t Count() override { return static_cast<std::int64_t>(m_map.size()); }

    Value Item(const Key& key) override
    {
        auto found = m_map.find(key);
        if (found == m_map.end())
            Detail::RaiseDictionaryMessage(KeyNotFoundMessage(key));
        return found->second;
    }

    void SetItem(const Key& key, const Value& value) override
    {
        RefuseIfReadOnly();
        if (!ContainsKey(key)) {
            Add(key, value);
            return;
        }
        Args args;
        if (!m_eventsDisabled) {
            args = CollectionEventArgs::New(cetModifying, ToAny(key), ToAny(value), ToAny(Item(key)));
            FireBefore(this->ItemModifying(), args, &IValueDictionaryImpl::ModificationDeniedMessage);
        }
        // Erased and inserted anew: the entry may change its place in Keys().
        m_map.erase(key);
        m_map.emplace(key, value);
        FireAfter(this->ItemModified(), args, cetModified);
    }

    void Add(const Key& key, const Value& value) override
    {
        RefuseIfReadOnly();
        Args args;
        if (!m_eventsDisabled) {
            args = CollectionEventArgs::New(cetInserting, ToAny(key), ToAny(value));
            FireBefore(this->ItemInserting(), args, &IValueDictionaryImpl::InsertionDeniedMessage);
        }
        if (!m_map.emplace(key, value).second)
            Detail::RaiseDictionaryMessage(Detail::DictionaryText(L"There is already an item of key %1%", key));
        FireAfter(this->ItemInserted(), args, cetInserted);
    }

    bool Remove(const Key& key) override
    {
        RefuseIfReadOnly();
        if (!ContainsKey(key))
            return false;
        Args args;
        if (!m_eventsDisabled) {
            args = CollectionEventArgs::New(cetRemoving, ToAny(key), ToAny(Item(key)));
            FireBefore(this->ItemRemoving(), args, &IValueDictionaryImpl::RemovalDeniedMessage);
        }
        m_map.erase(key);
        FireAfter(this->ItemRemoved(), args, cetRemoved);
        return true;
    }

    // Emptying an empty dictionary is no change: nothing is refused.
    void Clear() override
    {
        if (m_map.empty())
            return;
        RefuseIfReadOnly();
        Args args;
        if (!m_eventsDisabled) {
            args = CollectionEventArgs::New(cetClearing);
            FireBefore(this->Clearing(), args, &IValueDictionaryImpl::ClearingDeniedMessage);
            args->SetEventType(cetClearConfirmed);
            this->Clearing().Fire(args);
        }
        m_map.clear();
        FireAfter(this->Cleared(), args, cetCleared);
    }

    bool ContainsKey(const Key& key) override { return m_map.find(key) != m_map.end(); }

    std::vector<Key> Keys() override
    {
        std::vector<Key> keys;
        keys.reserve(m_map.size());
        for (const auto& entry : m_map)
            keys.push_back(entry.first);
        return keys;
    }

    bool IsReadOnly() override { return m_readOnly; }

    bool EventsDisabled() override { return m_eventsDisabled; }
    void SetEventsDisabled(bool disabled) override { m_eventsDisabled = disabled; }

    virtual std::wstring KeyNotFoundMessage(const Key& key)
    {
        return Detail::DictionaryText(L"The dictionary does not contain key '%1%'", key);
    }
    virtual std::wstring ModificationDeniedMessage(Args args)
    {
        return Detail::DictionaryText(L"Item modification denied : %1%", args->Reason());
    }
    virtual std::wstring InsertionDeniedMessage(Args args)
    {
        return Detail::DictionaryText(L"Item insertion denied : %1%", args->Reason());
    }
    virtual std::wstring RemovalDeniedMessage(Args args)
    {
        return Detail::DictionaryText(L"Item removal denied : %1%", args->Reason());
    }
    virtual std::wstring ClearingDeniedMessage(Args args)
    {
        return Detail::DictionaryText(L"Clearing dictionary denied : %1%", args->Reason());
    }

protected:
    Map m_map;
    // Set by the implementing class; no interface offers a setter.
    bool m_readOnly = false;
    bool m_eventsDisabled = false;

private:
    using DeniedText = std::wstring (IValueDictionaryImpl::*)(Args);

    void RefuseIfReadOnly()
    {
        if (m_readOnly)
            Detail::RaiseDictionaryReadOnly();
    }

    // Every listener runs, even after a veto; the message is raised once
    // all have.
    void FireBefore(CollectionEvent& event, const Args& args, DeniedText denied)
    {
        event.Fire(args);
        if (!args->Allowed())
            Detail::RaiseDictionaryMessage((this->*denied)(args));
    }

    // The args keep their values: dictionaries do not release them. The
    // flag is looked at again: a before-listener may have switched events
    // off during the change.
    void FireAfter(CollectionEvent& event, const Args& args, CollectionEventTypeEnum type)
    {
        if (!args || m_eventsDisabled)
            return;
        args->SetEventType(type);
        event.Fire(args);
    }
};

} // namespace Quilon_::System::Collections::Template
