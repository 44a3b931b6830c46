// The concrete exceptions: the five fields and their operations, shared by
// CException and CCancelException. Both travel in archives: the message,
// the function and the file as wide strings, then the line; the details
// stay behind.
#pragma once

#include "Quilon_/System/Exception.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"

namespace Quilon_::System {

template <class I>
class IExceptionImpl : public I, public Serialization::Binary::ISerializable {
public:
    void Serialize(Pointer<Serialization::Binary::IWriter, 1> writer) override
    {
        writer << message << function << file << line;
    }
    void Deserialize(Pointer<Serialization::Binary::IReader, 1> reader) override
    {
        reader >> message >> function >> file >> line;
    }

    std::wstring Message() override { return message; }
    std::wstring Function() override { return function; }
    std::wstring File() override { return file; }
    std::int64_t Line() override { return line; }
    std::wstring Details() override { return details; }

protected:
    std::wstring message;
    std::wstring function;
    std::wstring file;
    std::int64_t line = 0;
    std::wstring details;
};

template <class Derived, class I>
class CExceptionOf : public Template::ObjectImpl<Derived, IExceptionImpl<I>> {
public:
    // Empty, for reading from an archive.
    CExceptionOf() = default;
    CExceptionOf(const std::wstring& message, const std::wstring& function, const std::wstring& file,
                 std::int64_t line)
    {
        this->message = message;
        this->function = function;
        this->file = file;
        this->line = line;
    }
};

class CException : public CExceptionOf<CException, IException> {
    using CExceptionOf::CExceptionOf;
};

class CCancelException : public CExceptionOf<CCancelException, ICancelException> {
    using CExceptionOf::CExceptionOf;
};

} // namespace Quilon_::System
