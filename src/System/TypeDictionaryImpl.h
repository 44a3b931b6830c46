// The dictionary behind Type::Types(): a map from names to types, under a
// lock of its own. Types of templated interfaces are built on first use, on
// whichever thread that happens, while other threads look names up.
#pragma once

#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/TypeDictionary.h"

#include <mutex>
#include <unordered_map>

namespace Quilon_::System::Detail {

using TypeMap = std::unordered_map<std::wstring, Type>;

class CTypeDictionary
    : public Template::ObjectImpl<CTypeDictionary, Collections::Template::IValueDictionaryImpl<ITypeDictionary, TypeMap>,
                                  ITypeDictionaryInternal, EventTarget> {
    using Base = Collections::Template::IValueDictionaryImpl<ITypeDictionary, TypeMap>;

public:
    // Every operation holds the lock; it is recursive, since the changes
    // call the other operations and fire events whose listeners may read.
    std::int64_t Count() override;
    Type Item(const std::wstring& key) override;
    void SetItem(const std::wstring& key, const Type& value) override;
    void Add(const std::wstring& key, const Type& value) override;
    bool Remove(const std::wstring& key) override;
    void Clear() override;
    bool ContainsKey(const std::wstring& key) override;
    std::vector<std::wstring> Keys() override;
    // The inner store itself, unguarded.
    TypeMap& Store() override;
    void OnEventTargetReset() override {}

    // Registration: adds the pair under the lock unless the name is there,
    // without events.
    void AddIfAbsent(const std::wstring& key, const Type& value);

private:
    std::recursive_mutex m_lock;
};

} // namespace Quilon_::System::Detail
