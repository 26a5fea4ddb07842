#include "chartcontrol/layout/space/EdgeLabels.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace QmChart6 {

namespace {

/// Names take at most this part of the width.
constexpr double WidestNameShare = 0.2;
/// A name that would keep fewer characters is left out.
constexpr qsizetype FewestCharacters = 8;
/// Labels move at most so many of their heights away from their edge.
constexpr double FarthestPush = 2;
/// Edges that are steeper than this have their names at their side, not below.
constexpr double SteepShare = 0.3;
constexpr double NameSlack = 0.01;

/// Whether no more than one in eight of those that were wanted is lost.
bool AreMost(const std::vector<EdgeLabel>& found, const std::vector<KeptCategory>& wanted) {
    const auto named = std::ranges::count_if(
        wanted, [](const KeptCategory& name) { return !name.text.trimmed().isEmpty(); });
    return found.size() >= 2 && 8 * static_cast<std::ptrdiff_t>(found.size()) >= 7 * named;
}

class NamesAlong {
public:
    NamesAlong(const AxisTexts& texts, const NamedEdge& edge)
        : texts_(texts), edge_(edge), outward_(texts.Outward(edge.from, edge.to)) {}

    [[nodiscard]] std::vector<EdgeLabel> Staggered(const CategorySequence& names) const {
        AxisTextRoom room = texts_.room;
        std::vector<EdgeLabel> placed;
        for (int i = 0; i < names.Count(); ++i) {
            EdgeLabel name = NameAt(room, {i, names.Text(i)});
            if (!name.line || (!placed.empty() && !IsBehind(*placed.back().line, *name.line))) continue;
            room.Take(WithAir(BoundsOf(*name.line)));
            placed.push_back(std::move(name));
        }
        return placed;
    }

    [[nodiscard]] std::vector<EdgeLabel> Thinned(CategorySequence names) const {
        const double rise = std::abs(edge_.to.y - edge_.from.y);
        const double run = std::abs(edge_.to.x - edge_.from.x);
        // An edge that is looked at along its length has no room for more than one.
        if (names.Count() > 1 && rise + run < texts_.LineHeight(edge_.id)) return {};
        const double most = std::max(2.0, (rise + run) / texts_.LineHeight(edge_.id));
        std::vector<KeptCategory> all;
        for (int i = 0; i < names.Count() && names.Count() <= most; ++i) all.push_back({i, names.Text(i)});
        std::vector<EdgeLabel> best = Best(all);
        if (!all.empty() && AreMost(best, all)) return best;
        for (int step = 0;; ++step) {
            const auto kept = names.Kept(step, most);
            if (!kept) break;
            std::vector<EdgeLabel> some = Best(*kept);
            if (AreMost(some, *kept)) return some;
            if (some.size() > best.size()) best = std::move(some);
        }
        if (best.empty() && names.Count() > 0) best = Best({{0, names.Text(0)}});
        return best;
    }

private:
    /// Whether the second stands farther along the edge.
    [[nodiscard]] bool IsBehind(const TextLine& first, const TextLine& second) const {
        const Point from = BoundsOf(first).Center();
        const Point to = BoundsOf(second).Center();
        return (to.x - from.x) * (edge_.to.x - edge_.from.x) + (to.y - from.y) * (edge_.to.y - edge_.from.y) >
               0;
    }

    /// Names stand beside the edge, just so far that they are clear of it.
    [[nodiscard]] EdgeLabel NameAt(const AxisTextRoom& room, const KeptCategory& name) const {
        const double away = texts_.Gap(edge_.id) + std::abs(outward_.y) * texts_.LineHeight(edge_.id) / 2;
        const Point at = edge_.place(name.category);
        const TextBlock block =
            ElidedLine(name.text, texts_.AxisOf(edge_.id).Labels.Item(1).VtFont,
                       WidestNameShare * texts_.box.Width() + NameSlack, texts_.context.measurer);
        if (block.elided && !block.IsEmpty() && block.lines.front().text.size() < FewestCharacters)
            return {name.category + 1, {}};
        const TextAnchor anchor = std::abs(outward_.x) < SteepShare ? TextAnchor::Middle
                                  : outward_.x < 0                  ? TextAnchor::End
                                                                    : TextAnchor::Start;
        return Pushed(texts_, room, edge_.id, name.category + 1,
                      texts_.LineAt(edge_.id, block.IsEmpty() ? QString() : block.lines.front().text,
                                    {at.x + outward_.x * away, at.y + outward_.y * away}, anchor),
                      outward_);
    }

    /// The most neighbours of the names that find a place.
    [[nodiscard]] std::vector<EdgeLabel> Best(const std::vector<KeptCategory>& names) const {
        std::vector<EdgeLabel> all;
        for (const KeptCategory& name : names)
            if (!name.text.trimmed().isEmpty()) all.push_back(NameAt(texts_.room, name));
        const auto run = LongestRun(all);
        return {run.begin(), run.end()};
    }

    const AxisTexts& texts_;
    const NamedEdge& edge_;
    Point outward_;
};

} // namespace

std::span<const EdgeLabel> LongestRun(const std::vector<EdgeLabel>& labels) {
    const auto meet = [&](std::size_t i, std::size_t j) {
        return Meet(WithAir(BoundsOf(*labels[i].line)), BoundsOf(*labels[j].line));
    };
    std::span<const EdgeLabel> longest;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (!labels[i].line) {
            begin = i + 1;
            continue;
        }
        // Those that were pushed aside leave the ones on both sides of them to meet.
        for (std::size_t before = begin; before < i; ++before)
            if (meet(before, i)) begin = before + 1;
        if (i + 1 - begin > longest.size()) longest = std::span(labels).subspan(begin, i + 1 - begin);
    }
    return longest;
}

EdgeLabel Pushed(const AxisTexts& texts, const AxisTextRoom& room, AxisId id, int index, TextLine line,
                 Point outward) {
    if (line.text.isEmpty()) return {index, {}};
    const Box wished = BoundsOf(line);
    const std::optional<Box> found = room.Push(wished, outward, FarthestPush * texts.LineHeight(id));
    if (!found) return {index, {}};
    line.origin = {line.origin.x + found->left - wished.left, line.origin.y + found->top - wished.top};
    return {index, std::move(line)};
}

std::vector<EdgeLabel> ThinnedNames(const AxisTexts& texts, const NamedEdge& edge, CategorySequence names) {
    return NamesAlong(texts, edge).Thinned(std::move(names));
}

std::vector<EdgeLabel> StaggeredNames(const AxisTexts& texts, const NamedEdge& edge,
                                      const CategorySequence& names) {
    return NamesAlong(texts, edge).Staggered(names);
}

} // namespace QmChart6
