// Operators with several signatures: one operator object per overload, all
// of the same name, held together so that a call picks the overload by its
// arguments like any overloaded function.
//
//   // header: the class of the namespace that holds the overloads
//   class QUILON_API Function1 : public Functions::Template::Overloads<void(I, I), void(I, I, double)> {
//   public:
//       using Overloads::Overloads;
//   };
//   extern QUILON_API Function1 Blur;
//   // source
//   Function1 Blur(L"Blur");
//
//   Blur.Overload<1>().Register(L"Fast blur", &FastBlur);   // a library, at start-up
//   Blur(input, output, 2.0);                               // overload 1
//
// Overloads are numbered from 0 in the order of the template arguments, and
// each has its own implementations and rules.
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <cstddef>
#include <string>
#include <tuple>
#include <utility>

namespace Quilon_::System::Functions::Template {

namespace Detail {

template <std::size_t Index, class Signature>
class IndexedOverload;

template <std::size_t Index, class R, class... A>
class IndexedOverload<Index, R(A...)> {
public:
    explicit IndexedOverload(const std::wstring& name) : function(name) {}
    R operator()(A... arguments) const { return function(std::forward<A>(arguments)...); }

    Function<R (*)(A...)> function;
};

template <class Indexes, class... Signatures>
class OverloadSet;

template <std::size_t... Index, class... Signatures>
class OverloadSet<std::index_sequence<Index...>, Signatures...>
    : public IndexedOverload<Index, Signatures>... {
public:
    using IndexedOverload<Index, Signatures>::operator()...;

    explicit OverloadSet(const std::wstring& name) : IndexedOverload<Index, Signatures>(name)... {}

    template <std::size_t N>
    using SignatureAt = std::tuple_element_t<N, std::tuple<Signatures...>>;

    // The operator of overload N, for registration, rules and listings.
    template <std::size_t N>
    Function<SignatureAt<N>*>& Overload()
    {
        return static_cast<IndexedOverload<N, SignatureAt<N>>&>(*this).function;
    }
    template <std::size_t N>
    const Function<SignatureAt<N>*>& Overload() const
    {
        return static_cast<const IndexedOverload<N, SignatureAt<N>>&>(*this).function;
    }
    static constexpr std::size_t Count() { return sizeof...(Signatures); }
};

} // namespace Detail

template <class... Signatures>
class QUILON_API Overloads
    : public Detail::OverloadSet<std::index_sequence_for<Signatures...>, Signatures...> {
public:
    explicit Overloads(const std::wstring& name)
        : Detail::OverloadSet<std::index_sequence_for<Signatures...>, Signatures...>(name)
    {
    }
};

} // namespace Quilon_::System::Functions::Template
