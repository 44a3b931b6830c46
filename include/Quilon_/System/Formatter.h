// Fills the %1%, %2%, ... placeholders of a (translated) message.
//
// A format that does not fit its arguments never turns the report of one
// failure into another: the text becomes "Format failed for format string
// '...' (exception = '...', type = '...')" instead.
//
//   std::wstring text = Detail::Formatter(L"Value %1% of %2%") % 3 % L"x";
#pragma once

#include "Quilon_/System/String.h"

#include <boost/format.hpp>
#include <cstdint>
#include <exception>
#include <string>

namespace Quilon_::System {
class Type;
}

namespace Quilon_::System::Detail {

class QUILON_API Formatter {
public:
    Formatter(const std::wstring& format, const std::wstring& function, const std::wstring& file,
              std::int64_t line);
    explicit Formatter(const std::wstring& format);

    template <class A>
    Formatter& operator%(const A& argument)
    {
        if (m_failed)
            return *this;
        try {
            m_format % Presentable(argument);
        } catch (const std::exception& e) {
            Fail(e);
        }
        return *this;
    }

    operator std::wstring() const;

    const std::wstring& Function() const { return m_function; }
    const std::wstring& File() const { return m_file; }
    std::int64_t Line() const { return m_line; }

private:
    template <class A>
    static const A& Presentable(const A& argument)
    {
        return argument;
    }
    static std::wstring Presentable(const std::string& argument) { return ToStringLenient(argument); }
    static std::wstring Presentable(const char* argument) { return ToStringLenient(argument); }
    static const std::wstring& Presentable(const LIString& argument) { return argument.Value(); }
    static std::wstring Presentable(const Type& argument);

    void Fail(const std::exception& failure);
    std::wstring FailureText(const std::string& what, const std::string& type) const;

    std::wstring m_text;
    boost::wformat m_format;
    std::wstring m_function;
    std::wstring m_file;
    std::int64_t m_line = 0;
    bool m_failed = false;
    std::string m_failureWhat;
    std::string m_failureType;
};

} // namespace Quilon_::System::Detail
