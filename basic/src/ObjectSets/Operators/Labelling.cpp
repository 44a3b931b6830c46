#include "ObjectSets/Operators/Labelling.h"

#include "Geometry/NgbGraphOffsets.h"

#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <map>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

Connectivity ConnectivityOfOffsets(const std::vector<Basic::Geometry::Offset>& offsets)
{
    // (dy, dz) -> the offsets along X, of the half before the pixel.
    std::map<std::pair<std::int64_t, std::int64_t>, std::vector<std::int64_t>> rows;
    for (Basic::Geometry::Offset o : offsets) {
        if (o.z > 0 || (o.z == 0 && o.y > 0))
            o = {-o.x, -o.y, -o.z};
        if (o.z == 0 && o.y == 0)
            continue; // along the row: runs hold those
        rows[{o.y, o.z}].push_back(o.x);
    }
    Connectivity result;
    for (auto& [row, xs] : rows) {
        std::sort(xs.begin(), xs.end());
        xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
        if (xs.back() - xs.front() + 1 != std::int64_t(xs.size()))
            QUILON_RAISE(L"Unsupported neighbourhood: %1%",
                         std::wstring(L"offsets along X are not contiguous"));
        result.before.push_back({int(row.first), int(row.second), int(xs.front()), int(xs.back())});
    }
    return result;
}

// Union-find over provisional labels; the smaller label is the root, so a
// component's root is its first run in raster order.
struct LabelForest {
    std::vector<std::int32_t> parent;

    std::int32_t Add()
    {
        parent.push_back(std::int32_t(parent.size()));
        return parent.back();
    }
    std::int32_t Find(std::int32_t label) noexcept
    {
        std::int32_t root = label;
        while (parent[std::size_t(root)] != root)
            root = parent[std::size_t(root)];
        while (parent[std::size_t(label)] != root) {
            const std::int32_t next = parent[std::size_t(label)];
            parent[std::size_t(label)] = root;
            label = next;
        }
        return root;
    }
    std::int32_t Unite(std::int32_t a, std::int32_t b) noexcept
    {
        a = Find(a);
        b = Find(b);
        if (a < b)
            parent[std::size_t(b)] = a;
        else
            parent[std::size_t(a)] = b;
        return std::min(a, b);
    }
};

// Gives each run its component, `componentOf(run)` (0 to count - 1), and
// gathers the components' counts and boxes.
template <class ComponentOf>
void NumberRuns(Labelling& result, std::size_t count, ComponentOf componentOf)
{
    const std::int64_t height = result.size[1];
    result.components.assign(count, Component{});
    for (Run& run : result.runs) {
        run.label = componentOf(run);
        Component& c = result.components[std::size_t(run.label)];
        const std::int64_t y = run.row % height, z = run.row / height;
        if (c.count == 0) {
            c.low = {run.x0, y, z};
            c.high = {run.x1 - 1, y, z};
        } else {
            c.low = {std::min<std::int64_t>(c.low[0], run.x0), std::min(c.low[1], y), c.low[2]};
            c.high = {std::max<std::int64_t>(c.high[0], run.x1 - 1), std::max(c.high[1], y), z};
        }
        c.count += run.x1 - run.x0;
    }
}

// The number of foreground runs in a row of bytes.
std::size_t CountRunsOfLine(const std::uint8_t* line, std::int64_t width)
{
    std::size_t starts = 0;
    std::uint8_t previous = 0;
    for (std::int64_t x = 0; x < width; ++x) {
        const std::uint8_t set = line[x] != 0;
        starts += set & (previous ^ 1);
        previous = set;
    }
    return starts;
}

// Bytes of zeros kept after a row of foreground bytes.
constexpr std::size_t lineTail = 16;

std::uint64_t RunLineWord(const std::uint8_t* bytes)
{
    std::uint64_t word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

// Appends the runs of a row of 0/1 bytes followed by lineTail zeros,
// eight bytes at a step: the first set byte of a word is its lowest
// non-zero byte, the first unset one that of the word XOR 0x0101...
void AppendRunsOfLine(const std::uint8_t* line, std::int64_t width, std::int64_t row, std::vector<Run>& runs)
{
    constexpr std::uint64_t ones = 0x0101010101010101ull;
    std::int64_t x = 0;
    while (x < width) {
        const std::uint64_t set = RunLineWord(line + x);
        if (set == 0) {
            x += 8;
            continue;
        }
        x += std::countr_zero(set) / 8;
        if (x >= width)
            break;
        const std::int64_t x0 = x;
        for (;;) {
            const std::uint64_t unset = RunLineWord(line + x) ^ ones;
            if (unset != 0) {
                x += std::countr_zero(unset) / 8;
                break;
            }
            x += 8;
        }
        runs.push_back({std::int32_t(x0), std::int32_t(x), std::int32_t(row), -1});
    }
}

// Room for the runs of the image, from a count over every 16th row plus a
// margin. A buffer near the real size is one the allocator can hand back,
// already mapped, on the next call of the same size; a worst-case
// reservation (half a row of runs per row, 130 MB for 4096 x 4096) is mapped
// afresh on every call, and the page faults on its written part cost about
// as much as labelling it. A low guess only costs the vector's growth.
std::size_t EstimatedRunCount(const Triple& size, const RowFunction& rows, std::vector<std::uint8_t>& line)
{
    const std::int64_t width = size[0], height = size[1], depth = size[2];
    const std::int64_t rowCount = height * depth;
    const std::size_t worst = std::size_t((width + 1) / 2 * rowCount);
    constexpr std::int64_t step = 16;
    if (rowCount < 4 * step)
        return worst;
    std::size_t sampled = 0, counted = 0;
    for (std::int64_t row = step / 2; row < rowCount; row += step, ++sampled) {
        rows(row % height, row / height, line.data());
        counted += CountRunsOfLine(line.data(), width);
    }
    const std::size_t estimate = counted * std::size_t(rowCount) / std::max<std::size_t>(sampled, 1);
    return std::min(worst, estimate + estimate / 8 + std::size_t(rowCount));
}

void CheckLabellingSize(const Triple& size)
{
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    if (size[0] >= most || size[1] * size[2] >= most)
        QUILON_RAISE(L"Image too large to label: %1% x %2% x %3%", size[0], size[1], size[2]);
}

} // namespace

Connectivity Connectivity::Of(Quilon_::Geometry::PredefinedNgbGraphEnum graph)
{
    return ConnectivityOfOffsets(Basic::Geometry::PredefinedGraphOffsets(graph));
}

Connectivity Connectivity::Of(System::Ref<Quilon_::Geometry::INgbGraph> graph)
{
    return ConnectivityOfOffsets(Basic::Geometry::ReadOffsets(*graph));
}

bool Connectivity::IsVolumetric() const noexcept
{
    return std::any_of(before.begin(), before.end(), [](const RowOffset& o) { return o.dz != 0; });
}

std::vector<BinaryMask> Labelling::Masks() const
{
    std::vector<BinaryMask> masks;
    masks.reserve(components.size());
    for (const Component& c : components)
        masks.push_back(BinaryMask::Over(
            c.low, {c.high[0] - c.low[0] + 1, c.high[1] - c.low[1] + 1, c.high[2] - c.low[2] + 1}));
    for (const Run& run : runs) {
        BinaryMask& mask = masks[std::size_t(run.label)];
        const auto first = mask.bits.begin() + mask.IndexOf(run.x0, run.row % size[1], run.row / size[1]);
        std::fill(first, first + (run.x1 - run.x0), std::uint8_t(1));
    }
    return masks;
}

Labelling LabelRows(const Triple& size, const Connectivity& connectivity, const RowFunction& rows)
{
    CheckLabellingSize(size);
    Labelling result;
    result.size = size;
    const std::int64_t width = size[0], height = size[1], depth = size[2];
    const std::int64_t rowCount = height * depth;
    // rowStart[r] is the first run of row r; rows not yet seen start at the end.
    std::vector<std::int64_t> rowStart(std::size_t(rowCount + 1), 0);
    // Zeros past the row's end: a sentinel that ends the last run, and room
    // to read the row a word at a time.
    std::vector<std::uint8_t> line(std::size_t(width) + lineTail, 0);
    LabelForest forest;
    std::vector<Run>& runs = result.runs;
    runs.reserve(EstimatedRunCount(size, rows, line));
    forest.parent.reserve(runs.capacity());
    for (std::int64_t z = 0; z < depth; ++z)
        for (std::int64_t y = 0; y < height; ++y) {
            const std::int64_t row = z * height + y;
            rowStart[std::size_t(row)] = std::int64_t(runs.size());
            rows(y, z, line.data());
            AppendRunsOfLine(line.data(), width, row, runs);
            const std::size_t first = std::size_t(rowStart[std::size_t(row)]), end = runs.size();
            for (const Connectivity::RowOffset& o : connectivity.before) {
                const std::int64_t ny = y + o.dy, nz = z + o.dz;
                if (ny < 0 || ny >= height || nz < 0 || nz >= depth)
                    continue;
                const std::int64_t other = nz * height + ny;
                std::size_t j = std::size_t(rowStart[std::size_t(other)]);
                const std::size_t jEnd = std::size_t(rowStart[std::size_t(other) + 1]);
                for (std::size_t k = first; k < end; ++k) {
                    Run& run = runs[k];
                    // A neighbour run [b0, b1) touches [a0, a1) when some
                    // x + dx, dx in [dxLow, dxHigh], falls in it.
                    const std::int64_t reachLow = run.x0 + o.dxLow, reachHigh = run.x1 - 1 + o.dxHigh;
                    while (j < jEnd && runs[j].x1 - 1 < reachLow)
                        ++j;
                    for (std::size_t i = j; i < jEnd && runs[i].x0 <= reachHigh; ++i)
                        run.label = run.label < 0 ? forest.Find(runs[i].label)
                                                  : forest.Unite(run.label, runs[i].label);
                }
            }
            for (std::size_t k = first; k < end; ++k)
                if (runs[k].label < 0)
                    runs[k].label = forest.Add();
            rowStart[std::size_t(row) + 1] = std::int64_t(runs.size());
        }
    // Roots come in raster order of their first run: number them so.
    std::vector<std::int32_t> numberOf(forest.parent.size());
    std::size_t count = 0;
    for (std::size_t label = 0; label < forest.parent.size(); ++label) {
        const std::int32_t root = forest.Find(std::int32_t(label));
        numberOf[label] = std::size_t(root) == label ? std::int32_t(count++) : numberOf[std::size_t(root)];
    }
    NumberRuns(result, count, [&](const Run& run) { return numberOf[std::size_t(run.label)]; });
    return result;
}

Labelling LabelValues(const Triple& size, const LabelRowFunction& rows, std::vector<std::int64_t>& values)
{
    CheckLabellingSize(size);
    Labelling result;
    result.size = size;
    const std::int64_t width = size[0], height = size[1], depth = size[2];
    std::vector<std::int64_t> line(static_cast<std::size_t>(width));
    std::vector<std::int64_t> runValues;
    for (std::int64_t z = 0; z < depth; ++z)
        for (std::int64_t y = 0; y < height; ++y) {
            rows(y, z, line.data());
            for (std::int64_t x = 0; x < width;) {
                const std::int64_t value = line[std::size_t(x)];
                const std::int64_t x0 = x;
                while (x < width && line[std::size_t(x)] == value)
                    ++x;
                if (value == 0)
                    continue;
                result.runs.push_back({std::int32_t(x0), std::int32_t(x), std::int32_t(z * height + y), 0});
                runValues.push_back(value);
            }
        }
    values = runValues;
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    std::size_t index = 0;
    NumberRuns(result, values.size(), [&](const Run&) {
        const std::int64_t value = runValues[index++];
        return std::int32_t(std::lower_bound(values.begin(), values.end(), value) - values.begin());
    });
    return result;
}

} // namespace Quilon_::Basic::ObjectSets::Operators
