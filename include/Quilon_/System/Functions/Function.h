// Operator objects: named objects, exported as data, on which libraries
// register implementations and through which applications call.
//
//   // an exported operator with no implementation yet
//   Function<double (*)(double, double)> Scale(L"Scale");
//   // a library registers an implementation at start-up; the one registered
//   // last is tried first, the earlier ones stay as fall-backs
//   Scale.Register(L"Fast scale", &FastScale);
//   double y = Scale(2.0, 3.0);
//
// A call walks the implementations from the first to the last until one
// succeeds. An operator with rules boxes its arguments into Anys and runs
// the rule chains Check, Make, Check again and PreExecute before each
// implementation, and PostExecute after it; an operator without rules
// costs one size check and one indirect call.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Quilon_::System::Functions {

// The four moments at which rules run; the numbers index the rule vectors.
enum RuleTypeEnumTag : std::int32_t {
    // Before the implementation, before and again after Make.
    rtCheck = 0,
    // Between the two runs of Check; prepares outputs.
    rtMake = 1,
    // Directly before the implementation.
    rtPreExecute = 2,
    // After the implementation has returned normally.
    rtPostExecute = 3,
};
using RuleTypeEnum = RuleTypeEnumTag;

inline constexpr std::size_t RuleTypeCount = 4;
using RuleCollections = std::vector<Pointer<Rules::IRuleCollection, 0>>;

// Text for tools that present operators.
class QUILON_API IDescription : public virtual Interface {
    QUILON_INTERFACE(IDescription)
public:
    virtual LIString Summary() = 0;
    virtual LIString Details() = 0;
    virtual std::int64_t ArgumentCount() = 0;
    virtual LIString ArgumentDescription(std::int64_t index) = 0;
};

namespace Function {
// While true, every skipped implementation is written to the debugger
// output. False at start.
QUILON_API bool DiagnosticEnabled();
QUILON_API void SetDiagnosticEnabled(bool enabled);
} // namespace Function

namespace Detail {

// One parameter or the result of an operator as tools see it, generated
// from the signature: the type as text ("Ref<IImage>", "double", "int64",
// "Geometry::AxisEnum", "Any"), whether the implementation hands a value
// back through it, and what a tool needs to make a value of it.
struct ArgumentDescription {
    std::wstring type;
    // A non-const reference: the caller's value is replaced after the call.
    bool output = false;
    // The type without reference and const.
    const std::type_info* valueType = nullptr;
    // A default value of the type, boxed; null when it has none.
    Any (*makeDefault)() = nullptr;
    // For an enumeration, a number boxed as the enumeration; null otherwise.
    Any (*fromInteger)(std::int64_t) = nullptr;
};

// The type as tools show it: the presentable name (Helper::TypeName) with
// references written Ref<I> and Pointer<I,0> after the interface's own
// name, the 64-bit integers as int64 and uint64, and enumerations by the
// name code uses, without "Tag".
QUILON_API std::wstring ArgumentTypeText(const std::type_info& type);

// The four rule collections, by moment, of an operator or of one of its
// implementations; remembers whether any is set, so that the call need not
// look at all four.
class QUILON_API RuleSet {
public:
    RuleSet() : collections(RuleTypeCount) {}

    const Pointer<Rules::IRuleCollection, 0>& Get(RuleTypeEnum type) const
    {
        return collections.at(static_cast<std::size_t>(type));
    }
    void Set(RuleTypeEnum type, Pointer<Rules::IRuleCollection, 0> collection);
    // All four; missing ones become null.
    void Set(const RuleCollections& all);
    const RuleCollections& All() const { return collections; }
    bool Any() const { return any; }

private:
    RuleCollections collections;
    bool any = false;
};

// One registered implementation, without its function pointer.
class QUILON_API Implementation {
public:
    explicit Implementation(bool ignoreFunctionRules = false);
    Implementation(const LIString& name, bool ignoreFunctionRules = false);

    const LIString& Name() const { return name; }
    Pointer<IDescription, 0> Description() const { return description; }
    void SetDescription(Pointer<IDescription, 0> value) { description = std::move(value); }
    // With this set, only the implementation's own rules run.
    bool IgnoreFunctionRules() const { return ignoreFunctionRules; }
    Pointer<Rules::IRuleCollection, 0> Rules(RuleTypeEnum type) const { return rules.Get(type); }
    void SetRules(RuleTypeEnum type, Pointer<Rules::IRuleCollection, 0> collection)
    {
        rules.Set(type, std::move(collection));
    }
    void SetRules(const RuleCollections& collections) { rules.Set(collections); }
    // Whether any of the four collections is set.
    bool HasOwnRules() const { return rules.Any(); }

private:
    LIString name;
    Pointer<IDescription, 0> description;
    RuleSet rules;
    bool ignoreFunctionRules;
};

// The part of an operator that does not depend on its signature.
class QUILON_API Function {
public:
    Function();
    explicit Function(const std::wstring& name);
    Function(const Function& other);
    Function& operator=(const Function&) = delete;
    virtual ~Function();

    // True if an implementation is registered; otherwise false, or with
    // `throwIfNot` the failure "No implementation available for function".
    virtual bool CheckImplemented(bool throwIfNot) const = 0;
    // The number of implementations registered, for tools that list operators.
    virtual std::size_t ImplementationCount() const = 0;

    // The parameters and the result type, as the signature declares them;
    // for tools that list operators or call them from text.
    virtual std::vector<ArgumentDescription> Parameters() const;
    virtual std::wstring ResultType() const;
    // Calls the operator, by the same path as a call from code, with boxed
    // arguments, one per parameter, each read back as the parameter's type;
    // the values handed back through output parameters replace their boxes.
    // The result boxed, empty for void. Raises "Operator %1% takes %2%
    // arguments, not %3%" on a wrong count.
    virtual Any Invoke(std::vector<Any>& arguments) const;

    const std::wstring& Name() const { return name; }
    Pointer<IDescription, 0> Description() const { return description; }
    void SetDescription(Pointer<IDescription, 0> value) { description = std::move(value); }
    Pointer<Rules::IRuleCollection, 0> Rules(RuleTypeEnum type) const { return rules.Get(type); }
    void SetRules(RuleTypeEnum type, Pointer<Rules::IRuleCollection, 0> collection)
    {
        rules.Set(type, std::move(collection));
    }
    void SetRules(const RuleCollections& collections) { rules.Set(collections); }
    const RuleCollections& AllRules() const { return rules.All(); }

    // The next call runs only the implementation of `index`. A one-shot,
    // consumed by that call; not guarded against other threads.
    void SetNextRunImplementation(std::int64_t index);
    std::int64_t NextRunImplementation() const
    {
        return nextRunImplementation.load(std::memory_order_relaxed);
    }

    // Runs the function's collection of `type` (unless the implementation
    // ignores it), then the implementation's own; false at the first that
    // fails.
    bool ApplyRules(RuleTypeEnum type, const Implementation& implementation, std::vector<Any>& arguments,
                    Rules::RuleFailures& failures) const;

protected:
    bool HasRules(const Implementation& implementation) const
    {
        return rules.Any() || implementation.HasOwnRules();
    }
    bool ApplyRules(const Pointer<Rules::IRuleCollection, 0>& functionRules,
                    const Pointer<Rules::IRuleCollection, 0>& implementationRules,
                    std::vector<Any>& arguments, Rules::RuleFailures& failures) const;

    // Consumes the selection of SetNextRunImplementation and narrows
    // [first, last] to it; raises when it is out of range.
    void SelectImplementation(std::size_t count, std::size_t& first, std::size_t& last) const;
    [[noreturn]] void RaiseNotImplemented(const char* signature, const char* file, int line) const;
    [[noreturn]] void RaiseArgumentCount(std::size_t expected, std::size_t given) const;
    // For an operator whose signature names an interface that is only
    // declared where the operator is defined.
    [[noreturn]] void RaiseNotInvocable() const;
    // Writes the skip to the debugger output while diagnostics are enabled.
    void TraceSkipped(const Implementation& implementation, const Rules::RuleFailures& failures,
                      const char* signature) const;
    // The exception being handled, as the failure of an implementation: an
    // IException as it is (it has been reported by whoever raised it); a
    // std::exception or anything else turned into a reported exception. Only
    // to be called from a handler.
    static Pointer<IException, 1> CaughtFailure(const char* signature);
    // The end of a call in which every implementation failed.
    [[noreturn]] static void RaiseFailed(Pointer<IException, 0> lastError,
                                         const Rules::RuleFailures& failures, const char* signature,
                                         const char* file, int line);

private:
    std::wstring name;
    Pointer<IDescription, 0> description;
    RuleSet rules;
    mutable std::atomic<std::int64_t> nextRunImplementation{-1};
};

// Keeps a result, or nothing for void, across the post-execution rules.
template <class R>
struct ResultOf {
    std::optional<R> value;
    template <class F>
    void Call(F&& call)
    {
        value.emplace(call());
    }
    R Take() { return std::move(*value); }
};
template <>
struct ResultOf<void> {
    template <class F>
    void Call(F&& call)
    {
        call();
    }
    void Take() {}
};

// Passes an argument on as its parameter type asks. A by-value parameter
// gets a copy, so that a later implementation gets the caller's value
// again; with `last`, when no implementation comes after this one, it gets
// the value itself, which spares a Pointer argument its reference count.
template <class A, class V>
A PassOn(V& value, bool last)
{
    if constexpr (std::is_rvalue_reference_v<A>)
        return std::move(value);
    else if constexpr (std::is_reference_v<A> || std::is_trivially_copyable_v<A>)
        return value;
    else if (last)
        return std::move(value);
    else
        return value;
}

template <class A>
using Unboxed = std::remove_cvref_t<A>;

// Reads an argument back after the rules. Every interface reference is
// boxed as Pointer<Interface,0>, so that is asked for first: a request for
// the parameter's own Pointer type would miss, and each miss compares type
// names. An object that the rules left in place is passed on as the caller
// gave it, which spares the interface cast; casts and name comparisons are
// most of the cost of a call with rules.
template <class T, class Original>
T Unbox(const Any& box, const Original& original)
{
    if constexpr (System::Detail::IsPointer<T>::value) {
        if (const System::Detail::AnyHolderBase* holder = box.Holder()) {
            if (const void* value = holder->ValuePointer(typeid(Pointer<Interface, 0>))) {
                const auto& object = *static_cast<const Pointer<Interface, 0>*>(value);
                if constexpr (std::is_same_v<T, Original>) {
                    if (object.Get() == System::Detail::AsInterface(original.Get()))
                        return original;
                }
                return T(object);
            }
        }
    }
    return box.template CastTo<T>();
}

// A parameter through which the implementation hands a value back.
template <class A>
inline constexpr bool IsOutput =
    std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

// Whether a value of T can be boxed and read back where the operator is
// defined: a reference to an interface that is only declared there cannot.
template <class T>
struct Boxable : std::true_type {
};
template <class I, int N>
    struct Boxable<System::Template::Pointer<I, N>> : std::bool_constant < requires {
    sizeof(I);
} > {};

template <class A>
ArgumentDescription DescribeArgument()
{
    using Value = std::remove_cvref_t<A>;
    ArgumentDescription description{ArgumentTypeText(typeid(Value)), IsOutput<A>, &typeid(Value)};
    if constexpr (std::is_default_constructible_v<Value> && std::is_copy_constructible_v<Value> &&
                  Boxable<Value>::value)
        description.makeDefault = [] { return ToAny(Value{}); };
    if constexpr (std::is_enum_v<Value>)
        description.fromInteger = [](std::int64_t value) { return ToAny(static_cast<Value>(value)); };
    return description;
}

} // namespace Detail

namespace Template {

template <class R, class... A>
class QUILON_API FunctionN : public Detail::Function {
    static_assert(sizeof...(A) <= 13, "operators take at most 13 arguments");

public:
    using FunctionPointer = R (*)(A...);
    using Result = R;

    class Implementation : public Detail::Implementation {
    public:
        explicit Implementation(FunctionPointer function, bool ignoreFunctionRules = false)
            : Detail::Implementation(ignoreFunctionRules), function(function)
        {
        }
        Implementation(const LIString& name, FunctionPointer function, bool ignoreFunctionRules = false)
            : Detail::Implementation(name, ignoreFunctionRules), function(function)
        {
        }
        FunctionPointer function;
    };

    FunctionN() = default;
    explicit FunctionN(const std::wstring& name) : Detail::Function(name) {}

    bool CheckImplemented(bool throwIfNot) const override
    {
        if (!implementations.empty())
            return true;
        if (!throwIfNot)
            return false;
        RaiseNotImplemented(QUILON_FUNCTION, __FILE__, __LINE__);
    }
    std::size_t ImplementationCount() const override { return implementations.size(); }

    std::vector<Detail::ArgumentDescription> Parameters() const override
    {
        return {Detail::DescribeArgument<A>()...};
    }
    std::wstring ResultType() const override
    {
        return Detail::ArgumentTypeText(typeid(std::remove_cvref_t<R>));
    }
    Any Invoke(std::vector<Any>& arguments) const override
    {
        if (arguments.size() != sizeof...(A))
            RaiseArgumentCount(sizeof...(A), arguments.size());
        if constexpr ((Detail::Boxable<Detail::Unboxed<A>>::value && ... &&
                       Detail::Boxable<std::remove_cvref_t<R>>::value))
            return InvokeBoxed(arguments, std::index_sequence_for<A...>());
        else
            RaiseNotInvocable();
    }

    // Registration puts the new implementation at the front: the one
    // registered last is tried first.
    void Register(const Implementation& implementation)
    {
        implementations.push_back(implementation);
        std::rotate(implementations.begin(), implementations.end() - 1, implementations.end());
    }
    void Register(FunctionPointer function)
    {
        if (function)
            Register(Implementation(function));
    }
    void Register(const LIString& name, FunctionPointer function, bool ignoreFunctionRules = false)
    {
        if (function)
            Register(Implementation(name, function, ignoreFunctionRules));
    }
    // Removes every registration of `function`, for a library that goes away.
    void Unregister(FunctionPointer function)
    {
        std::erase_if(implementations,
                      [function](const Implementation& i) { return i.function == function; });
    }

    const std::vector<Implementation>& Implementations() const { return implementations; }
    // For start-up code that sets an implementation's own rules.
    std::vector<Implementation>& Implementations() { return implementations; }

    // The implementation registered last is called directly when neither it
    // nor the function has rules and no index is selected: one size check,
    // two flag tests and the indirect call, small enough to be inlined at
    // the call site. Everything else, and the fall-back when it fails, is
    // in Dispatch, out of line.
    [[gnu::always_inline]] R operator()(A... arguments) const
    {
        if (!implementations.empty() && NextRunImplementation() < 0) [[likely]] {
            const Implementation& implementation = implementations.front();
            if (!HasRules(implementation)) [[likely]] {
                Pointer<IException, 0> failure;
                try {
                    [[maybe_unused]] const bool last = implementations.size() == 1;
                    return implementation.function(Detail::PassOn<A>(arguments, last)...);
                } catch (...) {
                    failure = CaughtFailure(QUILON_FUNCTION);
                }
                return Dispatch(1, std::move(failure), arguments...);
            }
        }
        return Dispatch(0, nullptr, arguments...);
    }

    // Writes the skipped implementation to the debugger output while
    // diagnostics are enabled.
    void SkipImplementation(const Detail::Implementation& implementation, Rules::RuleFailures& failures) const
    {
        TraceSkipped(implementation, failures, QUILON_FUNCTION);
    }

    // Runs the post-execution rules when the call has succeeded. Its
    // destructor raises the first failure of those rules, on purpose; it
    // does nothing when the implementation failed.
    class PostExecutionRulesEvaluator {
    public:
        PostExecutionRulesEvaluator(const FunctionN& function, const Detail::Implementation& implementation,
                                    std::vector<Any>& arguments)
            : function(function), implementation(implementation), arguments(arguments)
        {
        }
        PostExecutionRulesEvaluator(const PostExecutionRulesEvaluator&) = delete;
        PostExecutionRulesEvaluator& operator=(const PostExecutionRulesEvaluator&) = delete;
        ~PostExecutionRulesEvaluator() noexcept(false)
        {
            if (implementationFailed)
                return;
            Rules::RuleFailures failures;
            function.ApplyRules(rtPostExecute, implementation, arguments, failures);
            if (failures.empty())
                return;
            RaisePostExecutionFailure(failures.front().second);
        }

        const FunctionN& function;
        const Detail::Implementation& implementation;
        std::vector<Any>& arguments;
        bool implementationFailed = false;

    private:
        // By the raising sequence, so that the text is translated like any
        // literal message.
        [[noreturn]] static void RaisePostExecutionFailure(const std::wstring& text)
        {
            System::Detail::Raise(QUILON_FUNCTION, __FILE__, __LINE__, text.c_str());
        }
    };

private:
    // The walk over the implementations from `first` on; `lastError` is the
    // failure of those before it. From the start (`first` 0) it checks that
    // there is an implementation and takes the selected index.
    [[gnu::noinline]] R Dispatch(std::size_t first, Pointer<IException, 0> lastError, A&... arguments) const
    {
        if (implementations.empty())
            FunctionN::CheckImplemented(true);
        std::size_t last = implementations.size() - 1;
        if (first == 0 && NextRunImplementation() >= 0)
            SelectImplementation(implementations.size(), first, last);

        Rules::RuleFailures failures;
        for (std::size_t index = first; index <= last; ++index) {
            try {
                failures.clear();
                const Implementation& implementation = implementations[index];
                if (!HasRules(implementation))
                    return implementation.function(Detail::PassOn<A>(arguments, index == last)...);
                std::optional<Detail::ResultOf<R>> result =
                    CallWithRules(implementation, failures, arguments...);
                if (result)
                    return result->Take();
            } catch (...) {
                lastError = CaughtFailure(QUILON_FUNCTION);
            }
        }
        RaiseFailed(lastError, failures, QUILON_FUNCTION, __FILE__, __LINE__);
    }

    // The path with rules for one implementation: box, run Check, Make,
    // Check, PreExecute, read the arguments back, call, run PostExecute.
    // Empty when a rule refused the implementation.
    std::optional<Detail::ResultOf<R>> CallWithRules(const Implementation& implementation,
                                                     Rules::RuleFailures& failures, A&... arguments) const
    {
        std::vector<Any> boxed;
        boxed.reserve(sizeof...(A));
        (boxed.push_back(ToAny(arguments)), ...);
        for (RuleTypeEnum type : {rtCheck, rtMake, rtCheck, rtPreExecute}) {
            if (!ApplyRules(type, implementation, boxed, failures)) {
                SkipImplementation(implementation, failures);
                return std::nullopt;
            }
        }
        std::optional<Detail::ResultOf<R>> result(std::in_place);
        {
            PostExecutionRulesEvaluator evaluator(*this, implementation, boxed);
            try {
                CallUnboxed(implementation, boxed, *result, std::index_sequence_for<A...>(), arguments...);
            } catch (...) {
                evaluator.implementationFailed = true;
                throw;
            }
        }
        return result;
    }

    // Reads the arguments back (rules may have replaced them), calls, and
    // hands the values of output parameters back to the caller and to the
    // post-execution rules.
    template <std::size_t... I>
    static void CallUnboxed(const Implementation& implementation, std::vector<Any>& boxed,
                            Detail::ResultOf<R>& result, std::index_sequence<I...>, A&... arguments)
    {
        std::tuple<Detail::Unboxed<A>...> values(Detail::Unbox<Detail::Unboxed<A>>(boxed[I], arguments)...);
        [[maybe_unused]] const std::array<const Interface*, sizeof...(A)> before{
            OutputObject<A>(std::get<I>(values))...};
        result.Call(
            [&]() -> R { return implementation.function(Detail::PassOn<A>(std::get<I>(values), true)...); });
        (StoreOutput<A>(std::get<I>(values), arguments, boxed[I], before[I]), ...);
    }

    // The object that an output reference parameter held before the call;
    // null for other parameters.
    template <class Parameter, class Value>
    static const Interface* OutputObject(const Value& value)
    {
        if constexpr (Detail::IsOutput<Parameter> && System::Detail::IsPointer<Value>::value)
            return System::Detail::AsInterface(value.Get());
        else
            return nullptr;
    }

    // An output goes back to the caller, and into its box for the post
    // rules. An object that the implementation left in place keeps its box:
    // the box may hold the wrapper that keeps the object's events off, and
    // must go on holding it until the boxes go at the end of the call.
    template <class Parameter, class Value, class Argument>
    static void StoreOutput(const Value& value, Argument& argument, Any& box, const Interface* before)
    {
        if constexpr (Detail::IsOutput<Parameter>) {
            argument = value;
            if constexpr (System::Detail::IsPointer<Value>::value) {
                if (before && System::Detail::AsInterface(value.Get()) == before)
                    return;
            }
            box = ToAny(value);
        }
    }

    // The call of Invoke: through operator(), so that a call from text
    // takes the path of a call from code.
    template <std::size_t... I>
    Any InvokeBoxed([[maybe_unused]] std::vector<Any>& boxed, std::index_sequence<I...>) const
    {
        [[maybe_unused]] std::tuple<Detail::Unboxed<A>...> values{
            boxed[I].template CastTo<Detail::Unboxed<A>>()...};
        Any result;
        if constexpr (std::is_void_v<R>)
            (*this)(std::forward<A>(std::get<I>(values))...);
        else
            result = ToAny((*this)(std::forward<A>(std::get<I>(values))...));
        ((Detail::IsOutput<A> ? void(boxed[I] = ToAny(std::get<I>(values))) : void()), ...);
        return result;
    }

    std::vector<Implementation> implementations;
};

template <class R>
using Function0 = FunctionN<R>;
template <class R, class A1>
using Function1 = FunctionN<R, A1>;
template <class R, class A1, class A2>
using Function2 = FunctionN<R, A1, A2>;
template <class R, class A1, class A2, class A3>
using Function3 = FunctionN<R, A1, A2, A3>;
template <class R, class A1, class A2, class A3, class A4>
using Function4 = FunctionN<R, A1, A2, A3, A4>;
template <class R, class A1, class A2, class A3, class A4, class A5>
using Function5 = FunctionN<R, A1, A2, A3, A4, A5>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6>
using Function6 = FunctionN<R, A1, A2, A3, A4, A5, A6>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7>
using Function7 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8>
using Function8 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8, class A9>
using Function9 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8, A9>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8, class A9,
          class A10>
using Function10 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8, A9, A10>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8, class A9,
          class A10, class A11>
using Function11 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8, A9, A10, A11>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8, class A9,
          class A10, class A11, class A12>
using Function12 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8, A9, A10, A11, A12>;
template <class R, class A1, class A2, class A3, class A4, class A5, class A6, class A7, class A8, class A9,
          class A10, class A11, class A12, class A13>
using Function13 = FunctionN<R, A1, A2, A3, A4, A5, A6, A7, A8, A9, A10, A11, A12, A13>;

// An operator by its signature: Function<void (*)(Pointer<IImage>, double&)>.
template <class Signature>
class Function;

template <class R, class... A>
class QUILON_API Function<R (*)(A...)> : public FunctionN<R, A...> {
public:
    // An operator without implementation, named `name`.
    explicit Function(const std::wstring& name) : FunctionN<R, A...>(name) {}
    explicit Function(const wchar_t* name) : FunctionN<R, A...>(name) {}
    // An operator with a default implementation (no name, rules honoured).
    explicit Function(R (*function)(A...)) { this->Register(function); }
};

template <class R, class... A>
class QUILON_API Function<R(A...)> : public Function<R (*)(A...)> {
public:
    using Function<R (*)(A...)>::Function;
};

} // namespace Template

} // namespace Quilon_::System::Functions
