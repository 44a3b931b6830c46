#include "Quilon_/ObjectSets/Key.h"

#include "Quilon_/System/Serialization/Binary/Serializable.h"

namespace Quilon_::System {

Any ToAny(const ObjectSets::Key& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<ObjectSets::Key>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System

namespace Quilon_::System::Serialization::Binary {

// The integer rule of the stream applies as to any __int64: narrowed, and
// checked, in a 32-bit stream.
WriterRef operator<<(WriterRef writer, const ObjectSets::Key& value)
{
    return std::move(writer) << value.Value();
}

ReaderRef operator>>(ReaderRef reader, ObjectSets::Key& value)
{
    std::int64_t read = 0;
    reader = std::move(reader) >> read;
    value = ObjectSets::Key(read);
    return reader;
}

} // namespace Quilon_::System::Serialization::Binary
