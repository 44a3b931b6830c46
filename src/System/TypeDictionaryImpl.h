// The dictionary behind Type::Types(): a plain map from names to types.
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/TypeDictionary.h"

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
    std::unordered_map<std::wstring, Type>& Store() override;

private:
    std::unordered_map<std::wstring, Type> m_map;
};

} // namespace Quilon_::System::Detail
