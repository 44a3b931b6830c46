// Ordered lists of values (strings, points, input events) rather than of
// objects. The interface is declared here; the implementations lie in the
// libraries that the core loads.
//
//   Pointer<Template::IValueCollection<std::wstring>, 1> names = ...;
//   names->Add(L"first");
//   names->Item(0);   // L"first"
#pragma once

#include "Quilon_/System/Interface.h"

#include <cstdint>

namespace Quilon_::System::Collections::Template {

template <class T>
class QUILON_API IValueCollection : public virtual Interface {
public:
    static const Type& GetType();

    virtual std::int64_t Count() = 0;
    virtual std::int64_t IndexOf(const T& item) = 0;
    virtual T Item(std::int64_t index) = 0;
    virtual void SetItem(std::int64_t index, const T& item) = 0;
    virtual std::int64_t Add(const T& item) = 0;
    virtual void Insert(std::int64_t index, const T& item) = 0;
    virtual bool RemoveAt(std::int64_t index) = 0;
    virtual bool Remove(const T& item) = 0;
    virtual void Clear() = 0;
    virtual bool IsReadOnly() = 0;
};

} // namespace Quilon_::System::Collections::Template
