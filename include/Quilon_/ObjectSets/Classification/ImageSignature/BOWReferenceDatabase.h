// Reference images by their bag-of-words signatures, searched for the ones
// nearest to a query. The concrete database comes from an implementation
// library:
//
//   using namespace Quilon_::ObjectSets::Classification::ImageSignature;
//   System::Ref<IBOWReferenceDatabase> references = BOWReferenceDatabase::New();
//   references->Add(computer->Compute(model), L"model");
//   std::vector<std::int64_t> nearest = references->Nearest(computer->Compute(scene), 3);
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::ObjectSets::Classification::ImageSignature {

class QUILON_API IBOWReferenceDatabase : public virtual System::Interface {
    QUILON_INTERFACE(IBOWReferenceDatabase)
public:
    // Adds a reference; its index.
    virtual std::int64_t Add(const std::vector<double>& signature, const std::wstring& label) = 0;
    virtual std::int64_t Count() = 0;
    virtual std::wstring Label(std::int64_t index) = 0;
    virtual void Clear() = 0;
    // The indexes of the `count` references nearest to the signature, the
    // nearest first.
    virtual std::vector<std::int64_t> Nearest(const std::vector<double>& signature, std::int64_t count) = 0;
};

namespace BOWReferenceDatabase {
using Factory = System::Functions::Template::Factory<System::Ref<IBOWReferenceDatabase>()>;
extern QUILON_API Factory New;
} // namespace BOWReferenceDatabase

} // namespace Quilon_::ObjectSets::Classification::ImageSignature
