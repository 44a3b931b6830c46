// The dictionary behind Type::Types(): a map from names to types, under a
// lock of its own. Types of templated interfaces are built on first use, on
// whichever thread that happens, while other threads look names up.
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/TypeDictionary.h"

#include <mutex>

namespace Quilon_::System::Detail {

class CTypeDictionary : public Template::ObjectImpl<CTypeDictionary, ITypeDictionary, ITypeDictionaryInternal> {
public:
    std::int64_t Count() override;
    Type Item(const std::wstring& key) override;
    void SetItem(const std::wstring& key, const Type& value) override;
    void Add(const std::wstring& key, const Type& value) override;
    bool Remove(const std::wstring& key) override;
    void Clear() override;
    bool ContainsKey(const std::wstring& key) override;
    std::vector<std::wstring> Keys() override;
    bool IsReadOnly() override;
    // The inner store itself, unguarded.
    std::unordered_map<std::wstring, Type>& Store() override;

    // Registration: adds the pair under the lock unless the name is there.
    void AddIfAbsent(const std::wstring& key, const Type& value);

private:
    std::mutex m_lock;
    std::unordered_map<std::wstring, Type> m_map;
};

} // namespace Quilon_::System::Detail
