// Lists of integer sizes, behind SizeCollection::New.
#include "Quilon_/Drawing/SizeCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Ref;
namespace CollectionErrors = System::Collections::Template::Detail;

namespace {

using SizeI = Size<int>;

class CSizeCollection
    : public System::Template::ObjectImpl<CSizeCollection, ISizeCollection, System::ICloneable> {
public:
    CSizeCollection() = default;
    explicit CSizeCollection(std::vector<SizeI> sizes) : m_sizes(std::move(sizes)) {}

    std::int64_t Count() override { return static_cast<std::int64_t>(m_sizes.size()); }
    std::int64_t IndexOf(const SizeI& item) override
    {
        const auto found = std::find(m_sizes.begin(), m_sizes.end(), item);
        return found == m_sizes.end() ? -1 : found - m_sizes.begin();
    }
    SizeI Item(std::int64_t index) override { return m_sizes[Checked(index)]; }
    void SetItem(std::int64_t index, const SizeI& item) override { m_sizes[Checked(index)] = item; }
    std::int64_t Add(const SizeI& item) override
    {
        m_sizes.push_back(item);
        return Count() - 1;
    }
    void Insert(std::int64_t index, const SizeI& item) override
    {
        if (index < 0 || index > Count())
            CollectionErrors::RaiseInsertIndexOutOfRange(index);
        m_sizes.insert(m_sizes.begin() + index, item);
    }
    bool RemoveAt(std::int64_t index) override { return RemoveRange(index, 1); }
    bool Remove(const SizeI& item) override { return RemoveAt(IndexOf(item)); }
    void Clear() override { m_sizes.clear(); }
    bool IsReadOnly() override { return false; }

    std::vector<SizeI> Sizes() override { return m_sizes; }
    void SetSizes(const std::vector<SizeI>& sizes) override { m_sizes = sizes; }
    void AddRange(const std::vector<SizeI>& sizes) override
    {
        m_sizes.insert(m_sizes.end(), sizes.begin(), sizes.end());
    }
    bool RemoveRange(std::int64_t index, std::int64_t count) override
    {
        if (index < 0 || count < 0 || index + count > Count())
            return false;
        m_sizes.erase(m_sizes.begin() + index, m_sizes.begin() + index + count);
        return true;
    }
    void Reverse() override { std::reverse(m_sizes.begin(), m_sizes.end()); }
    SizeI Minimum() override
    {
        return Extreme([](int a, int b) { return std::min(a, b); });
    }
    SizeI Maximum() override
    {
        return Extreme([](int a, int b) { return std::max(a, b); });
    }
    std::int64_t TotalArea() override
    {
        std::int64_t total = 0;
        for (const SizeI& size : m_sizes)
            total += Area(size);
        return total;
    }
    void Scale(double factor) override
    {
        for (SizeI& size : m_sizes)
            size = SizeI(int(std::lround(size.cx * factor)), int(std::lround(size.cy * factor)));
    }
    void SortByArea() override
    {
        std::stable_sort(m_sizes.begin(), m_sizes.end(),
                         [](const SizeI& a, const SizeI& b) { return Area(a) < Area(b); });
    }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new CSizeCollection(m_sizes));
    }

private:
    static std::int64_t Area(const SizeI& size) { return std::int64_t(size.cx) * size.cy; }

    template <class Pick>
    SizeI Extreme(Pick pick) const
    {
        if (m_sizes.empty())
            return SizeI();
        SizeI result = m_sizes.front();
        for (const SizeI& size : m_sizes)
            result = SizeI(pick(result.cx, size.cx), pick(result.cy, size.cy));
        return result;
    }

    std::size_t Checked(std::int64_t index) const
    {
        if (index < 0 || index >= static_cast<std::int64_t>(m_sizes.size()))
            CollectionErrors::RaiseIndexOutOfRange(index);
        return static_cast<std::size_t>(index);
    }

    std::vector<SizeI> m_sizes;
};

Ref<ISizeCollection> NewEmptySizes()
{
    return Ref<ISizeCollection>(new CSizeCollection());
}

Ref<ISizeCollection> NewSizesOf(const std::vector<SizeI>& sizes)
{
    return Ref<ISizeCollection>(new CSizeCollection(sizes));
}

void RegisterSizeCollection()
{
    SizeCollection::New.Register(L"Size collection", &NewEmptySizes);
    SizeCollection::New.Register(L"Size collection", &NewSizesOf);
}

const System::Template::Initializer<::Library> sizes(&RegisterSizeCollection, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Drawing
