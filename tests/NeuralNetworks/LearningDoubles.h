// Small stand-ins for the learning objects that a library would store as
// defaults: a cost measure, a termination condition and a collection of
// conditions.
//
//   Ref<Math::IDeviationEvaluationFunction> cost(new Learning::CCost);
//   Ref<ITerminationConditionCollection> conditions(new Learning::CConditions);
//   conditions->Add(Ref<ITerminationCondition>(new Learning::CCondition));
#pragma once

#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <vector>

namespace Quilon_::Tests::Learning {

// Counts the live instances, so that a suite sees when a default lets go.
class CCost : public System::Template::ObjectImpl<CCost, Math::IDeviationEvaluationFunction> {
public:
    CCost() { ++Live(); }
    ~CCost() override { --Live(); }
    static int& Live()
    {
        static int live = 0;
        return live;
    }

    double Evaluate(const std::vector<std::vector<double>>&, const std::vector<std::vector<double>>&) override
    {
        return 0;
    }
};

class CCondition
    : public System::Template::ObjectImpl<CCondition,
                                          NeuralNetworks::BackPropagation::ITerminationCondition> {
public:
    bool Test(System::Ref<NeuralNetworks::BackPropagation::ITerminationConditionEventArgs>) override
    {
        return false;
    }
    void Reset() override {}
};

// Only what the defaults use: counting, adding, reading back.
class CConditions
    : public System::Template::ObjectImpl<CConditions,
                                          NeuralNetworks::BackPropagation::ITerminationConditionCollection> {
public:
    std::int64_t Count() override { return static_cast<std::int64_t>(items.size()); }
    std::int64_t IndexOf(const ItemPointer& item) override
    {
        const auto found = std::find(items.begin(), items.end(), item);
        return found == items.end() ? -1 : found - items.begin();
    }
    ItemPointer Item(std::int64_t index) override { return items.at(static_cast<std::size_t>(index)); }
    void SetItem(std::int64_t index, const ItemPointer& item) override
    {
        items.at(static_cast<std::size_t>(index)) = item;
    }
    std::int64_t Add(const ItemPointer& item) override
    {
        items.push_back(item);
        return Count() - 1;
    }
    void Insert(std::int64_t index, const ItemPointer& item) override
    {
        items.insert(items.begin() + index, item);
    }
    bool RemoveAt(std::int64_t index) override
    {
        items.erase(items.begin() + index);
        return true;
    }
    bool Remove(const ItemPointer& item) override
    {
        const std::int64_t index = IndexOf(item);
        return index >= 0 && RemoveAt(index);
    }
    void Clear() override { items.clear(); }
    bool AllowMultipleInsertion() override { return true; }
    void SetAllowMultipleInsertion(bool) override {}
    bool IsReadOnly() override { return false; }

private:
    std::vector<ItemPointer> items;
};

} // namespace Quilon_::Tests::Learning
