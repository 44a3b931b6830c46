// Structuring elements as row spans for the fast erosion and dilation.
#include "Images/Morphology/Decomposition.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstdlib>
#include <iterator>
#include <map>
#include <utility>

namespace Quilon_::Basic::Images::Morphology {

namespace {

// The X offsets of every row of the element, sorted, rows in order of
// (dz, dy).
using RowKey = std::pair<std::int64_t, std::int64_t>;
using RowsOfElement = std::map<RowKey, std::vector<std::int64_t>>;

RowsOfElement RowsOfDecomposedElement(std::span<const Shift> shifts)
{
    RowsOfElement rows;
    for (const Shift& s : shifts)
        rows[{s.dz, s.dy}].push_back(s.dx);
    for (auto& [row, xs] : rows) {
        std::sort(xs.begin(), xs.end());
        xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
    }
    return rows;
}

// Calls visit(from, to) for every run of consecutive offsets of a row.
template <class Visit>
void ForEachRun(const std::vector<std::int64_t>& xs, Visit&& visit)
{
    for (std::size_t i = 0; i < xs.size();) {
        std::size_t j = i + 1;
        while (j < xs.size() && xs[j] == xs[j - 1] + 1)
            ++j;
        visit(xs[i], xs[j - 1]);
        i = j;
    }
}

bool HoldsSpan(const std::vector<std::int64_t>& xs, std::int64_t from, std::int64_t to)
{
    const auto first = std::lower_bound(xs.begin(), xs.end(), from);
    return first != xs.end() && xs.end() - first > to - from && first[to - from] == to;
}

bool HasAnyIn(const std::vector<std::int64_t>& xs, std::int64_t from, std::int64_t to)
{
    const auto first = std::lower_bound(xs.begin(), xs.end(), from);
    return first != xs.end() && *first <= to;
}

// Whether a span of these rows is worth a buffer of its own: one sample
// has nothing to fold along X, and a short span of a single row costs no
// more read directly than copied and folded.
bool WorthABuffer(std::size_t rowCount, std::int64_t length)
{
    return length > 1 && (rowCount > 1 || length > shortSpan + 1);
}

void AddGroup(Decomposition& plan, SpanGroup group)
{
    plan.padding = std::max({plan.padding, std::abs(group.from), std::abs(group.to)});
    plan.widestFold = std::max(plan.widestFold, group.rows.size());
    plan.groups.push_back(std::move(group));
}

// Whether the plan reads every offset of `shifts` and no other.
[[maybe_unused]] bool CoversExactly(const Decomposition& plan, std::span<const Shift> shifts)
{
    const auto ordered = [](auto&& list) {
        std::vector<std::array<std::int64_t, 3>> keys;
        for (const Shift& s : list)
            keys.push_back({s.dz, s.dy, s.dx});
        std::sort(keys.begin(), keys.end());
        keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
        return keys;
    };
    return ordered(Recomposed(plan)) == ordered(shifts) &&
           (!plan.chain || ordered(Recomposed(*plan.chain)) == ordered(shifts)) &&
           (!plan.line || ordered(Recomposed(*plan.line)) == ordered(shifts));
}

} // namespace

// Rows sharing a span are folded together; a group also takes in every
// other row that holds its whole span and still has offsets to cover in
// it, since a minimum may read an offset twice: the disk of radius 2
// becomes the 3 x 3 square and four single offsets. Groups of the most
// rows go first, so that they take in the most.
Decomposition Decompose(std::span<const Shift> shifts)
{
    const RowsOfElement rows = RowsOfDecomposedElement(shifts);
    std::vector<SpanGroup> candidates;
    // Plain names, not structured bindings: lambdas capture them (C++20
    // allows capturing a binding, not every compiler does yet).
    for (const auto& entry : rows) {
        const auto& row = entry.first;
        ForEachRun(entry.second, [&](std::int64_t from, std::int64_t to) {
            auto same = std::find_if(candidates.begin(), candidates.end(),
                                     [&](const SpanGroup& g) { return g.from == from && g.to == to; });
            if (same == candidates.end())
                same = candidates.insert(candidates.end(), SpanGroup{from, to, {}});
            same->rows.push_back({row.second, row.first});
        });
    }
    std::stable_sort(candidates.begin(), candidates.end(), [](const SpanGroup& a, const SpanGroup& b) {
        return a.rows.size() != b.rows.size() ? a.rows.size() > b.rows.size() : a.Length() > b.Length();
    });

    Decomposition plan;
    RowsOfElement uncovered = rows;
    for (const SpanGroup& candidate : candidates) {
        if (!WorthABuffer(candidate.rows.size(), candidate.Length()))
            continue;
        SpanGroup group{candidate.from, candidate.to, {}};
        for (const auto& [row, xs] : rows)
            if (HoldsSpan(xs, group.from, group.to) && HasAnyIn(uncovered[row], group.from, group.to))
                group.rows.push_back({row.second, row.first});
        if (!WorthABuffer(group.rows.size(), group.Length()))
            continue;
        for (const RowOffset& row : group.rows) {
            std::vector<std::int64_t>& left = uncovered[{row.dz, row.dy}];
            left.erase(std::lower_bound(left.begin(), left.end(), group.from),
                       std::upper_bound(left.begin(), left.end(), group.to));
        }
        AddGroup(plan, std::move(group));
    }
    // What no group covers: short runs are read directly, long ones get a
    // buffer of their own.
    for (const auto& entry : uncovered) {
        const auto& row = entry.first;
        ForEachRun(entry.second, [&](std::int64_t from, std::int64_t to) {
            if (WorthABuffer(1, to - from + 1))
                AddGroup(plan, SpanGroup{from, to, {{row.second, row.first}}});
            else
                for (std::int64_t dx = from; dx <= to; ++dx)
                    plan.points.push_back({dx, row.second, row.first});
        });
    }
    plan.widestFold = std::max({plan.widestFold, plan.points.size(), std::size_t(shortSpan)});
    // A chain reads each of its rows and terms once and stores each stage
    // once per sample; an element of few offsets (the cross, short lines)
    // costs less read directly.
    plan.chain = Chained(shifts);
    std::size_t offsets = 0;
    for (const auto& entry : rows)
        offsets += entry.second.size();
    if (plan.chain &&
        (plan.chain->terms.size() > mostChainTerms ||
         plan.chain->rows.size() + plan.chain->terms.size() + plan.chain->StageCount() > offsets))
        plan.chain.reset();
    plan.line = RowLineOf(shifts);
    if (plan.line && plan.line->length < shortestRowLine)
        plan.line.reset();
    return plan;
}

std::optional<RowLine> RowLineOf(std::span<const Shift> shifts)
{
    if (shifts.empty())
        return std::nullopt;
    std::vector<Shift> sorted(shifts.begin(), shifts.end());
    std::sort(sorted.begin(), sorted.end(), [](const Shift& a, const Shift& b) { return a.dy < b.dy; });
    RowLine line{sorted[0].dx, sorted[0].dy, 0, std::int64_t(sorted.size())};
    if (sorted.size() > 1)
        line.step = sorted[1].dx - sorted[0].dx;
    if (line.step < -1 || line.step > 1)
        return std::nullopt;
    for (std::size_t t = 0; t < sorted.size(); ++t) {
        const Shift& s = sorted[t];
        if (s.dz != 0 || s.dy != line.y0 + std::int64_t(t) || s.dx != line.x0 + line.step * std::int64_t(t))
            return std::nullopt;
    }
    return line;
}

std::vector<Shift> Recomposed(const RowLine& line)
{
    std::vector<Shift> shifts;
    for (std::int64_t t = 0; t < line.length; ++t)
        shifts.push_back({line.x0 + line.step * t, line.y0 + t, 0});
    return shifts;
}

std::optional<ChainedElement> Chained(std::span<const Shift> shifts)
{
    // The column of every dx, its rows as (dz, dy), sorted and distinct.
    std::map<std::int64_t, std::vector<RowKey>> columns;
    for (const Shift& s : shifts)
        columns[s.dx].push_back({s.dz, s.dy});
    std::vector<std::vector<RowKey>> distinct;
    for (auto& entry : columns) {
        std::vector<RowKey>& rows = entry.second;
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        distinct.push_back(rows);
    }
    std::sort(distinct.begin(), distinct.end(), [](const auto& a, const auto& b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    for (std::size_t k = 1; k < distinct.size(); ++k)
        if (!std::includes(distinct[k].begin(), distinct[k].end(), distinct[k - 1].begin(),
                           distinct[k - 1].end()))
            return std::nullopt;

    ChainedElement chain;
    for (std::size_t k = 0; k < distinct.size(); ++k) {
        std::vector<RowKey> added;
        if (k == 0)
            added = distinct[0];
        else
            std::set_difference(distinct[k].begin(), distinct[k].end(), distinct[k - 1].begin(),
                                distinct[k - 1].end(), std::back_inserter(added));
        for (const RowKey& row : added)
            chain.rows.push_back({row.second, row.first});
        chain.stageEnds.push_back(chain.rows.size());
    }
    for (const auto& entry : columns) {
        const auto stage = std::find(distinct.begin(), distinct.end(), entry.second) - distinct.begin();
        chain.terms.push_back({std::size_t(stage), entry.first});
        chain.padding = std::max(chain.padding, std::abs(entry.first));
    }
    return chain;
}

std::vector<Shift> Recomposed(const ChainedElement& chain)
{
    std::vector<Shift> shifts;
    for (const ChainedElement::Term& term : chain.terms)
        for (std::size_t i = 0; i < chain.stageEnds[term.stage]; ++i)
            shifts.push_back({term.dx, chain.rows[i].dy, chain.rows[i].dz});
    return shifts;
}

std::vector<Shift> Recomposed(const Decomposition& plan)
{
    std::vector<Shift> shifts = plan.points;
    for (const SpanGroup& group : plan.groups)
        for (const RowOffset& row : group.rows)
            for (std::int64_t dx = group.from; dx <= group.to; ++dx)
                shifts.push_back({dx, row.dy, row.dz});
    return shifts;
}

std::shared_ptr<const Decomposition> DecompositionOf(std::span<const Shift> shifts)
{
    struct Entry {
        std::vector<Shift> shifts;
        std::shared_ptr<const Decomposition> plan;
    };
    // Open and close ask for an element and its reflection in turn; a few
    // entries keep both, and those of a caller alternating two elements.
    thread_local std::array<Entry, 4> cache;
    thread_local std::size_t next = 0;
    for (Entry& entry : cache)
        if (entry.plan && std::equal(entry.shifts.begin(), entry.shifts.end(), shifts.begin(), shifts.end()))
            return entry.plan;
    Entry& entry = cache[next];
    next = (next + 1) % cache.size();
    entry.shifts.assign(shifts.begin(), shifts.end());
    entry.plan = std::make_shared<const Decomposition>(Decompose(shifts));
    assert(CoversExactly(*entry.plan, shifts));
    return entry.plan;
}

} // namespace Quilon_::Basic::Images::Morphology
