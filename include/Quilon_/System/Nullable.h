// A value that may be absent, as properties that an object may or may not
// carry give it back:
//
//   Nullable<DateTime> taken = ExtendedPropertiesHelper::DateTime(image);
//   if (taken.HasValue()) use(taken.Value());
#pragma once

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"

#include <optional>
#include <typeinfo>
#include <utility>

namespace Quilon_::System {

template <class T>
class Nullable {
public:
    Nullable() = default;
    Nullable(T value) : m_value(std::move(value)) {}

    bool HasValue() const { return m_value.has_value(); }
    // Raises when there is none.
    const T& Value() const
    {
        if (!m_value)
            QUILON_RAISE(L"Object has no value ('%1%')", Helper::TypeName(typeid(T)));
        return *m_value;
    }
    void SetValue(T value) { m_value = std::move(value); }
    void Reset() { m_value.reset(); }

    bool operator==(const Nullable& other) const = default;

private:
    std::optional<T> m_value;
};

} // namespace Quilon_::System
