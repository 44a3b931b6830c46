// An ordered list of integer sizes, such as the levels of a
// multi-resolution image or the cells of a layout.
//
//   Ref<Drawing::ISizeCollection> levels = Drawing::SizeCollection::New(
//       std::vector<Drawing::Size<int>>{{1024, 768}, {512, 384}});
//   levels->Maximum();      // (1024, 768)
//   levels->TotalArea();    // 983040
#pragma once

#include "Quilon_/Drawing/Size.h"
#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueCollection<Drawing::Size<int>>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Drawing {

class QUILON_API ISizeCollection : public virtual System::Collections::Template::IValueCollection<Size<int>> {
    QUILON_INTERFACE(ISizeCollection)
public:
    virtual std::vector<Size<int>> Sizes() = 0;
    virtual void SetSizes(const std::vector<Size<int>>& sizes) = 0;
    virtual void AddRange(const std::vector<Size<int>>& sizes) = 0;
    // Removes `count` sizes from `index` on; false if the range is not
    // inside the list (nothing is removed then).
    virtual bool RemoveRange(std::int64_t index, std::int64_t count) = 0;
    virtual void Reverse() = 0;
    // The smallest width and height, and the largest; (0, 0) for an empty
    // list.
    virtual Size<int> Minimum() = 0;
    virtual Size<int> Maximum() = 0;
    // The sum of width times height.
    virtual std::int64_t TotalArea() = 0;
    // Every width and height times `factor`, rounded to the nearest.
    virtual void Scale(double factor) = 0;
    // Orders by area, the smallest first; equal areas keep their order.
    virtual void SortByArea() = 0;
};

namespace SizeCollection {
using Factory =
    System::Functions::Template::Factory<System::Ref<ISizeCollection>(),
                                         System::Ref<ISizeCollection>(const std::vector<Size<int>>&)>;
extern QUILON_API Factory New;
} // namespace SizeCollection

} // namespace Quilon_::Drawing
