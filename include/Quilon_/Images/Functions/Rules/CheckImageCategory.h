// The rule that an image argument carries a given category:
//
//   checks->Add(CheckImageCategory::New(0, L"Image.Category.Edge"));
//   checks->Add(CheckImageBinary::New(1));   // the category "Image.Category.Binary"
//
// An image without a category, or with another one, is refused with
// "%1% image expected", %1% being the expected category.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/String.h"

#include <cstdint>

namespace Quilon_::Images::Functions::Rules {

namespace CheckImageCategory {
// (index, category); the core's own rule is the default implementation.
extern QUILON_API
    System::Functions::Template::Function<System::Pointer<System::Functions::Rules::IRule, 1> (*)(
        std::int64_t index, const System::LIString& category)>
        New;
} // namespace CheckImageCategory

namespace CheckImageBinary {
// (index): CheckImageCategory with the binary category.
extern QUILON_API System::Functions::Template::Function<
    System::Pointer<System::Functions::Rules::IRule, 1> (*)(std::int64_t index)>
    New;
} // namespace CheckImageBinary

} // namespace Quilon_::Images::Functions::Rules
