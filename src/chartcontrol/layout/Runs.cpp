#include "chartcontrol/layout/Runs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From so many categories to a device pixel column on, samples are picked.
constexpr double DenseFrom = 2;

class Collector {
public:
    Collector(const Values& values, Runs& runs) : values_(values), runs_(runs) {
        runs_.samples.clear();
        runs_.starts.assign(1, 0);
    }

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
        int least = first;
        int greatest = first;
        double low = values_[first];
        double high = low;
        for (int category = first + 1; category <= last; ++category) {
            const double value = values_[category];
            if (value < low) low = value, least = category;
            if (value > high) high = value, greatest = category;
        }
        Keep(first);
        Keep(std::min(least, greatest));
        Keep(std::max(least, greatest));
        Keep(last);
        if (last + 1 < end) Break();
    }

    void Break() {
        if (runs_.samples.size() > runs_.starts.back()) runs_.starts.push_back(runs_.samples.size());
    }

private:
    void Keep(int category) {
        if (runs_.samples.size() > runs_.starts.back() && runs_.samples.back().category >= category) return;
        runs_.samples.push_back({category, values_[category]});
    }

    const Values& values_;
    Runs& runs_;
};

} // namespace

void CollectRuns(const Values& values, const PlotArea& area, Runs& runs) {
    Collector collector(values, runs);
    const double column = 1 / area.pixelsPerPoint;
    if (area.slot * DenseFrom > column) {
        collector.All();
        return;
    }
    int begin = 0;
    for (int index = 1; begin < values.count; ++index) {
        const double edge = area.box.left + index * column;
        const int end =
            std::clamp(static_cast<int>(std::ceil((edge - area.firstX) / area.slot)), begin, values.count);
        if (end > begin) collector.Column(begin, end);
        begin = end;
        if (edge > area.box.right + column) {
            if (begin < values.count) collector.Column(begin, values.count);
            break;
        }
    }
    collector.Break();
}

} // namespace QmChart6
