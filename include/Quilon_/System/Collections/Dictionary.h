// Keyed stores of values and of objects.
//
// IValueDictionary<K,T> holds values, IDictionary<K,T> holds Pointer<T>.
// Changes fire the events of collections (CollectionEvents.h), keyed, and
// can be vetoed alike; the implementation is IValueDictionaryImpl
// (ValueDictionaryImpl.h). The nine operations come in this order in every
// dictionary:
//
//   dictionary->Add(L"key", value);
//   if (dictionary->ContainsKey(L"key")) use(dictionary->Item(L"key"));
//   for (const auto& key : dictionary->Keys()) ...
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Collections::Template {

template <class K, class T>
class QUILON_API IValueDictionary : public virtual Interface {
public:
    // Defined once for each instantiation the toolkit uses.
    static const Type& GetType();

    virtual std::int64_t Count() = 0;
    // The value of `key`; raises when the key is absent.
    virtual T Item(const K& key) = 0;
    // Replaces the value of `key`, or adds it when absent.
    virtual void SetItem(const K& key, const T& value) = 0;
    virtual void Add(const K& key, const T& value) = 0;
    // Removes `key`; false when it was absent.
    virtual bool Remove(const K& key) = 0;
    virtual void Clear() = 0;
    virtual bool ContainsKey(const K& key) = 0;
    // The keys in the order in which the store iterates them.
    virtual std::vector<K> Keys() = 0;
    virtual bool IsReadOnly() = 0;
};

// The same nine operations over objects.
template <class K, class T>
class QUILON_API IDictionary : public virtual Interface {
public:
    using ValuePointer = Pointer<T, 1>;

    // Defined once for each instantiation the toolkit uses.
    static const Type& GetType();

    virtual std::int64_t Count() = 0;
    virtual ValuePointer Item(const K& key) = 0;
    virtual void SetItem(const K& key, const ValuePointer& value) = 0;
    virtual void Add(const K& key, const ValuePointer& value) = 0;
    virtual bool Remove(const K& key) = 0;
    virtual void Clear() = 0;
    virtual bool ContainsKey(const K& key) = 0;
    virtual std::vector<K> Keys() = 0;
    virtual bool IsReadOnly() = 0;
};

} // namespace Quilon_::System::Collections::Template
