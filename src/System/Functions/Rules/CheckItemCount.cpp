#include "Quilon_/System/Functions/Rules/CheckItemCount.h"

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <optional>
#include <string>
#include <typeinfo>
#include <vector>

namespace Quilon_::System::Functions::Rules {

namespace {

// The element count when `value` holds a V.
template <class V>
std::optional<std::int64_t> SizeAs(const Any& value)
{
    const void* held = value.Holder() ? value.Holder()->ValuePointer(typeid(V)) : nullptr;
    if (!held)
        return std::nullopt;
    return static_cast<std::int64_t>(static_cast<const V*>(held)->size());
}

std::optional<std::int64_t> CollectionCount(const Any& value)
{
    const void* held = value.Holder() ? value.Holder()->ValuePointer(typeid(Pointer<Interface, 0>)) : nullptr;
    if (!held)
        return std::nullopt;
    Pointer<Collections::ICollection, 0> collection(*static_cast<const Pointer<Interface, 0>*>(held));
    if (!collection)
        return std::nullopt;
    return collection->Count();
}

// The kinds in the order in which they are tried.
std::optional<std::int64_t> ElementCount(const Any& value)
{
    if (auto n = SizeAs<std::vector<std::wstring>>(value))
        return n;
    if (auto n = SizeAs<std::vector<std::int64_t>>(value))
        return n;
    if (auto n = SizeAs<std::vector<double>>(value))
        return n;
    if (auto n = SizeAs<std::vector<float>>(value))
        return n;
    return CollectionCount(value);
}

class CCheckItemCount : public System::Template::ObjectImpl<CCheckItemCount, IRule, IRulePresentation> {
public:
    CCheckItemCount(std::int64_t index, std::int64_t minimum, std::int64_t maximum)
        : m_index(index), m_minimum(minimum), m_maximum(maximum)
    {
    }

    bool Apply(std::vector<Any>& arguments, RuleFailures& failures) override
    {
        std::optional<std::int64_t> count = ElementCount(arguments.at(static_cast<std::size_t>(m_index)));
        if (!count)
            return Refuse(failures, m_index, L"Argument #%1% is of an unsupported vector type", m_index + 1);
        if (m_minimum >= 0 && *count < m_minimum)
            return Refuse(failures, m_index, L"Argument #%1% must contain at least '%2%' elements", m_index + 1,
                          m_minimum);
        if (m_maximum >= 0 && *count > m_maximum)
            return Refuse(failures, m_index, L"Argument #%1% must contain less than or exactly '%2%' elements",
                          m_index + 1, m_maximum);
        return true;
    }

    std::wstring ClassName() override { return L"CCheckItemCount"; }
    std::vector<std::wstring> Arguments() override { return Detail::Texts(m_index, m_minimum, m_maximum); }

private:

    std::int64_t m_index;
    std::int64_t m_minimum;
    std::int64_t m_maximum;
};

Pointer<IRule, 1> NewCheckItemCount(std::int64_t index, std::int64_t minimum, std::int64_t maximum)
{
    return Pointer<IRule, 1>(new CCheckItemCount(index, minimum, maximum));
}

} // namespace

Functions::Template::Function<Pointer<IRule, 1> (*)(std::int64_t, std::int64_t, std::int64_t)>
    CheckItemCount::New(&NewCheckItemCount);

} // namespace Quilon_::System::Functions::Rules
