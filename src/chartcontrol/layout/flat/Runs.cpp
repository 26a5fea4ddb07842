#include "chartcontrol/layout/flat/Runs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From so many categories to a device pixel column on, samples are picked.
constexpr double DenseFrom = 2;

class Collector {
public:
    Collector(const Values& values, Runs& runs) : values_(values), runs_(runs) {}

    void All() {
        for (int category = 0; category < values_.count; ++category) {
            const double value = values_[category];
            if (std::isnan(value))
                Break();
            else
                runs_.samples.push_back({category, value});
        }
        Break();
    }

    /// First, least, greatest and last of the categories [begin, end).
    void Column(int begin, int end) {
        int first = begin;
        while (first < end && std::isnan(values_[first])) ++first;
        if (first > begin) Break();
        if (first == end) return;
        int last = end - 1;
        while (std::isnan(values_[last])) --last;
        const Extremes extremes = ExtremesOf(first, last + 1);
        Keep(first);
        Keep(std::min(extremes.least, extremes.greatest));
        Keep(std::max(extremes.least, extremes.greatest));
        Keep(last);
        if (last + 1 < end) Break();
    }

    void Break() {
        if (runs_.samples.size() > runs_.starts.back()) runs_.starts.push_back(runs_.samples.size());
    }

private:
    /// Categories of the least and the greatest value of those from `begin` to before `end`; the first is not
    /// missing.
    struct Extremes {
        int least = 0;
        int greatest = 0;
    };
    /// A stretch in which an extreme was met: where it starts, and how many values it has.
    struct Stretch {
        int begin = 0;
        int count = 1;
    };

    [[nodiscard]] Extremes ExtremesOf(int begin, int end) const {
        double low = values_[begin];
        double high = low;
        Stretch least{begin, 1};
        Stretch greatest{begin, 1};
        // Without branches: which of two values is the greater is as good as random here.
        const auto include = [&](double lowest, double highest, Stretch stretch) {
            const bool less = lowest < low;
            const bool more = highest > high;
            low = less ? lowest : low;
            least = less ? stretch : least;
            high = more ? highest : high;
            greatest = more ? stretch : greatest;
        };
        constexpr int size = ValueBlock::Size;
        int category = begin + 1;
        const int firstBlock = (category + size - 1) / size;
        const int endBlock = end / size;
        if (values_.blocks != nullptr && firstBlock < endBlock) {
            for (; category < firstBlock * size; ++category)
                include(values_[category], values_[category], {category, 1});
            for (int block = firstBlock; block < endBlock; ++block)
                include(values_.blocks[block].low, values_.blocks[block].high, {block * size, size});
            category = endBlock * size;
        }
        for (; category < end; ++category) include(values_[category], values_[category], {category, 1});
        return {Where(low, least), Where(high, greatest)};
    }

    /// The category of a value that is in a stretch.
    [[nodiscard]] int Where(double value, const Stretch& stretch) const {
        int category = stretch.begin;
        while (values_[category] != value) ++category;
        return category;
    }

    void Keep(int category) {
        if (runs_.samples.size() > runs_.starts.back() && runs_.samples.back().category >= category) return;
        runs_.samples.push_back({category, values_[category]});
    }

    const Values& values_;
    Runs& runs_;
};

void PickByColumn(Collector& collector, const Values& values, const PlotArea& area) {
    const double column = 1 / area.pixelsPerPoint;
    int begin = 0;
    for (int index = 1; begin < values.count; ++index) {
        const double edge = area.box.left + index * column;
        const bool beyond = edge > area.box.right + column;
        const int next = static_cast<int>(std::ceil((edge - area.firstX) / area.slot));
        const int end = beyond ? values.count : std::clamp(next, begin, values.count);
        if (end > begin) collector.Column(begin, end);
        begin = end;
    }
    collector.Break();
}

} // namespace

std::shared_ptr<const Runs> CollectRuns(const Values& values, const PlotArea& area) {
    const bool dense = area.slot * DenseFrom <= 1 / area.pixelsPerPoint;
    const RunsCache::Key key{area.box.left, area.box.right, area.firstX, area.slot, area.pixelsPerPoint};
    if (dense && values.cache != nullptr)
        if (auto kept = values.cache->Find(key)) return kept;
    auto runs = std::make_shared<Runs>();
    Collector collector(values, *runs);
    if (!dense) {
        collector.All();
        return runs;
    }
    constexpr double samplesOfColumn = 4;
    runs->samples.reserve(
        static_cast<std::size_t>(samplesOfColumn * (area.box.Width() * area.pixelsPerPoint + 2)));
    PickByColumn(collector, values, area);
    if (values.cache != nullptr) values.cache->Keep(key, runs);
    return runs;
}

} // namespace QmChart6
