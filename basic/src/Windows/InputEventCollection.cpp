// Lists of input events, behind InputEventCollection::New.
#include "Quilon_/Windows/InputEventCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <vector>

namespace Quilon_::Basic::Windows {

using namespace Quilon_::Windows;
using System::Ref;

namespace {

// A plain list: events are values, compared with ==, and may repeat.
class CInputEventCollection
    : public System::Template::ObjectImpl<CInputEventCollection, IInputEventCollection, System::ICloneable> {
public:
    CInputEventCollection() = default;
    CInputEventCollection(const CInputEventCollection& other) : ObjectImpl(), m_events(other.m_events) {}

    std::int64_t Count() override { return static_cast<std::int64_t>(m_events.size()); }
    std::int64_t IndexOf(const InputEvent& event) override
    {
        for (std::size_t i = 0; i < m_events.size(); ++i) {
            if (m_events[i] == event)
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
    InputEvent Item(std::int64_t index) override { return m_events[Checked(index, Count() - 1)]; }
    void SetItem(std::int64_t index, const InputEvent& event) override
    {
        m_events[Checked(index, Count() - 1)] = event;
    }
    std::int64_t Add(const InputEvent& event) override
    {
        m_events.push_back(event);
        return Count() - 1;
    }
    // Count() appends.
    void Insert(std::int64_t index, const InputEvent& event) override
    {
        m_events.insert(m_events.begin() + static_cast<std::ptrdiff_t>(Checked(index, Count())), event);
    }
    bool RemoveAt(std::int64_t index) override
    {
        m_events.erase(m_events.begin() + static_cast<std::ptrdiff_t>(Checked(index, Count() - 1)));
        return true;
    }
    bool Remove(const InputEvent& event) override
    {
        const std::int64_t index = IndexOf(event);
        return index >= 0 && RemoveAt(index);
    }
    void Clear() override { m_events.clear(); }
    bool IsReadOnly() override { return false; }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new CInputEventCollection(*this));
    }

private:
    static std::size_t Checked(std::int64_t index, std::int64_t last)
    {
        if (index < 0 || index > last)
            QUILON_RAISE(L"Collection index is out of range (%1%)", index);
        return static_cast<std::size_t>(index);
    }

    std::vector<InputEvent> m_events;
};

Ref<IInputEventCollection> NewInputEventCollection()
{
    return Ref<IInputEventCollection>(new CInputEventCollection);
}

void RegisterInputEventCollection()
{
    InputEventCollection::New.Register(L"Input event collection", &NewInputEventCollection);
}

const System::Template::Initializer<::Library> inputEvents(&RegisterInputEventCollection, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Windows
