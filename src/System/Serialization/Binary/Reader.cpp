#include "Quilon_/System/Serialization/Binary/Reader.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Serialization::Binary {

QUILON_DEFINE_INTERFACE_TYPE(IReader, L"Quilon_::System::Serialization::Binary::IReader", System::Interface)

Reader::Factory Reader::New;

namespace Reader {

QUILON_DEFINE_FUNCTION_SLOT(IsArchive, 1, bool (*)(const std::wstring& path))

bool IsArchive(const std::wstring& path)
{
    return QUILON_FUNCTION_SLOT(IsArchive, 1)(path);
}

} // namespace Reader

} // namespace Quilon_::System::Serialization::Binary
