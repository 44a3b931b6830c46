#include "Quilon_/System/Functions/Function.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Diagnostic/TraceManager.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Type.h"

#include <algorithm>
#include <atomic>
#include <regex>
#include <utility>

namespace Quilon_::System::Functions {

QUILON_DEFINE_INTERFACE_TYPE(IDescription, L"Quilon_::System::Functions::IDescription", Interface)

namespace {
constinit std::atomic<bool> diagnosticEnabled{false};
} // namespace

bool Function::DiagnosticEnabled()
{
    return diagnosticEnabled.load(std::memory_order_relaxed);
}

void Function::SetDiagnosticEnabled(bool enabled)
{
    diagnosticEnabled.store(enabled, std::memory_order_relaxed);
}

namespace Detail {

void RuleSet::Set(RuleTypeEnum type, Pointer<Rules::IRuleCollection, 0> collection)
{
    collections.at(static_cast<std::size_t>(type)) = std::move(collection);
    any = std::any_of(collections.begin(), collections.end(), [](const auto& c) { return bool(c); });
}

void RuleSet::Set(const RuleCollections& all)
{
    for (std::size_t i = 0; i < RuleTypeCount; ++i)
        Set(static_cast<RuleTypeEnum>(i), i < all.size() ? all[i] : nullptr);
}

Implementation::Implementation(bool ignoreFunctionRules) : ignoreFunctionRules(ignoreFunctionRules) {}

Implementation::Implementation(const LIString& name, bool ignoreFunctionRules)
    : name(name), ignoreFunctionRules(ignoreFunctionRules)
{
}

Function::Function()
{
    FunctionRegistry::Add(*this);
}

Function::Function(const std::wstring& name) : name(name)
{
    FunctionRegistry::Add(*this);
}

Function::Function(const Function& other)
    : name(other.name), description(other.description), rules(other.rules),
      nextRunImplementation(other.nextRunImplementation.load(std::memory_order_relaxed))
{
    FunctionRegistry::Add(*this);
}

Function::~Function()
{
    FunctionRegistry::Remove(*this);
}

void Function::SetNextRunImplementation(std::int64_t index)
{
    nextRunImplementation.store(index, std::memory_order_relaxed);
}

bool Function::ApplyRules(RuleTypeEnum type, const Implementation& implementation,
                          std::vector<Any>& arguments, Rules::RuleFailures& failures) const
{
    static const Pointer<Rules::IRuleCollection, 0> none;
    const auto& functionRules = implementation.IgnoreFunctionRules() ? none : rules.Get(type);
    return ApplyRules(functionRules, implementation.Rules(type), arguments, failures);
}

bool Function::ApplyRules(const Pointer<Rules::IRuleCollection, 0>& functionRules,
                          const Pointer<Rules::IRuleCollection, 0>& implementationRules,
                          std::vector<Any>& arguments, Rules::RuleFailures& failures) const
{
    if (functionRules && !functionRules->Apply(arguments, failures, false))
        return false;
    if (!implementationRules)
        return true;
    return implementationRules->Apply(arguments, failures, false);
}

void Function::SelectImplementation(std::size_t count, std::size_t& first, std::size_t& last) const
{
    std::int64_t selected = nextRunImplementation.exchange(-1, std::memory_order_relaxed);
    if (selected < 0)
        return;
    if (static_cast<std::uint64_t>(selected) >= count)
        QUILON_RAISE(L"Implementation index is out of range '%1%'", selected);
    first = last = static_cast<std::size_t>(selected);
}

void Function::RaiseNotImplemented(const char* signature, const char* file, int line) const
{
    System::Detail::Raise(signature, file, line, L"No implementation available for function '%1%' (%2%)",
                          name, std::string(signature));
}

std::vector<ArgumentDescription> Function::Parameters() const
{
    return {};
}

std::wstring Function::ResultType() const
{
    return L"void";
}

Any Function::Invoke(std::vector<Any>& arguments) const
{
    RaiseArgumentCount(0, arguments.size());
}

void Function::RaiseArgumentCount(std::size_t expected, std::size_t given) const
{
    QUILON_RAISE(L"Operator %1% takes %2% arguments, not %3%", name, static_cast<std::int64_t>(expected),
                 static_cast<std::int64_t>(given));
}

void Function::RaiseNotInvocable() const
{
    QUILON_RAISE(L"Operator %1% cannot be called with boxed arguments", name);
}

std::wstring ArgumentTypeText(const std::type_info& type)
{
    static const std::pair<std::wregex, const wchar_t*> rewrites[] = {
        {std::wregex(LR"(System::Template::Pointer<(?:\w+::)*(\w+),1>)"), L"Ref<$1>"},
        {std::wregex(LR"(System::Template::Pointer<(?:\w+::)*(\w+),0>)"), L"Pointer<$1,0>"},
        {std::wregex(LR"((\w)EnumTag\b)"), L"$1Enum"},
        {std::wregex(LR"(unsigned __int64)"), L"uint64"},
        {std::wregex(LR"(__int64)"), L"int64"},
        {std::wregex(LR"(\bSystem::(Any|LIString)\b)"), L"$1"},
    };
    std::wstring text = Helper::TypeName(type);
    for (const auto& [pattern, replacement] : rewrites)
        text = std::regex_replace(text, pattern, replacement);
    return text;
}

void Function::TraceSkipped(const Implementation& implementation, const Rules::RuleFailures& failures,
                            const char* signature) const
{
    if (!Functions::Function::DiagnosticEnabled())
        return;
    std::wstring reason = failures.empty() ? std::wstring() : failures.front().second;
    // The diagnostic line is not translated.
    std::wstring text =
        System::Detail::Formatter(L"Implementation '%1%' failed. Reason: '%2%' (function: %3% - %4%)") %
        implementation.Name().Value() % reason % name % std::string(signature);
    Diagnostic::OutputDebugString(text);
}

Pointer<IException, 1> Function::CaughtFailure(const char* signature)
{
    try {
        throw;
    } catch (const Pointer<IException, 1>& failure) {
        return failure;
    } catch (const std::exception& failure) {
        return System::Detail::MakeException(signature, __FILE__, __LINE__, L"STL exception: %1%",
                                             std::string(failure.what()));
    } catch (...) {
        return System::Detail::MakeException(signature, __FILE__, __LINE__, L"Unknown exception");
    }
}

void Function::RaiseFailed(Pointer<IException, 0> lastError, const Rules::RuleFailures& failures,
                           const char* signature, const char* file, int line)
{
    if (!lastError) {
        // Every implementation was refused by its rules: the first complaint
        // of the last one tried. Its text is already translated.
        std::wstring text = failures.empty() ? std::wstring() : failures.front().second;
        lastError = System::Detail::MakeReported(System::Detail::Formatter(
            text, System::Detail::ToStringLenient(signature), System::Detail::ToStringLenient(file), line));
    }
    Pointer<IException, 1> error(lastError);
    // Reported once more, on purpose, even when it was made just above.
    Library::ErrorManager()->SetLastError(error);
    throw error;
}

} // namespace Detail

} // namespace Quilon_::System::Functions
