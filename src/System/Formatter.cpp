#include "Quilon_/System/Formatter.h"

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"

#include <typeinfo>

namespace Quilon_::System::Detail {

Formatter::Formatter(const std::wstring& format, const std::wstring& function, const std::wstring& file,
                     std::int64_t line)
    : m_text(format), m_function(function), m_file(file), m_line(line)
{
    try {
        m_format.parse(format);
    } catch (const std::exception& e) {
        Fail(e);
    }
}

Formatter::Formatter(const std::wstring& format) : Formatter(format, std::wstring(), std::wstring(), 0) {}

std::wstring Formatter::Presentable(const Type& argument)
{
    return argument.Name();
}

void Formatter::Fail(const std::exception& failure)
{
    if (m_failed)
        return;
    m_failed = true;
    m_failureWhat = failure.what();
    m_failureType = ToAnsi(RuntimeClassName(typeid(failure)));
}

std::wstring Formatter::FailureText(const std::string& what, const std::string& type) const
{
    boost::wformat failure(TranslateMessage(
        L"Format failed for format string '%1%' (exception = '%2%', type = '%3%')"));
    failure.exceptions(boost::io::no_error_bits);
    failure % m_text % ToStringLenient(what) % ToStringLenient(type);
    return failure.str();
}

Formatter::operator std::wstring() const
{
    if (m_failed)
        return FailureText(m_failureWhat, m_failureType);
    try {
        return m_format.str();
    } catch (const std::exception& e) {
        return FailureText(e.what(), ToAnsi(RuntimeClassName(typeid(e))));
    }
}

} // namespace Quilon_::System::Detail
