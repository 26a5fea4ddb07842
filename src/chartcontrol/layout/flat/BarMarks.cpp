#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace QmChart6 {

namespace {

/// In bars narrower than this many device pixels a pattern would not be seen as one.
constexpr double NarrowestPatterned = 5;

class BarMarks {
public:
    BarMarks(const PlotContext& context, const std::vector<int>& series)
        : context_(context), series_(series),
          plain_(context.plot.bars.barWidth * context.area.pixelsPerPoint < NarrowestPatterned) {}

    /// Hairlines last: a taller neighbour in a pile must not cover what is hardly seen anyway.
    void Single() {
        for (const bool hairlines : {false, true})
            for (const int number : series_) Series(number, hairlines);
    }

    /// Where bars are thinner than a device pixel: in each pixel column, or slot where that is wider, one bar
    /// for each series, from its least to its greatest value.
    void Dense() {
        std::vector<Stretches> all;
        for (const int number : series_) all.push_back(StretchesOf(number));
        std::vector<std::size_t> at(series_.size(), 0);
        for (;;) {
            std::vector<std::pair<std::size_t, Stretch>> column;
            double next = std::numeric_limits<double>::infinity();
            for (std::size_t i = 0; i < all.size(); ++i)
                if (at[i] < all[i].size()) next = std::min(next, all[i][at[i]].index);
            if (std::isinf(next)) return;
            for (std::size_t i = 0; i < all.size(); ++i)
                if (at[i] < all[i].size() && all[i][at[i]].index == next)
                    column.emplace_back(i, all[i][at[i]++]);
            AddColumn(column);
        }
    }

private:
    /// What a series covers of a column.
    struct Stretch {
        double index = 0;
        double top = 0;
        double bottom = 0;

        [[nodiscard]] double Height() const { return bottom - top; }
    };
    using Stretches = std::vector<Stretch>;

    [[nodiscard]] SceneFill FillOfBar(const Brush& brush, bool plain) const {
        return plain && brush.Style != BrushStyle::None ? SolidFill(ShownColour(context_.chart, brush))
                                                        : FillOf(brush);
    }

    void Series(int number, bool hairlines) {
        const QmChart6::Series& series = context_.chart.Plot.SeriesCollection(number);
        const Values tops = context_.plotted.Top(number);
        for (int category = 0; category < tops.count; ++category) {
            const BarEnds ends = context_.plot.EndsOf(number, category);
            if (std::isnan(ends.end) || ends.isHairline != hairlines) continue;
            const DataPoint& look = series.DataPoints.Item(category + 1);
            context_.builder.AddRectangle({PartCode::Series, number, category + 1},
                                          context_.plot.BarOf(number, category),
                                          FillOfBar(look.Brush, plain_), EdgeOf(context_.chart, look, plain_),
                                          context_.plot.bars.whole);
        }
    }

    /// Columns are device pixels, or slots where those are wider.
    [[nodiscard]] double ColumnWidth() const {
        return std::max(1 / context_.area.pixelsPerPoint, context_.area.slot);
    }

    [[nodiscard]] Stretches StretchesOf(int number) const {
        const AxisMap& map = context_.plot.MapOf(number);
        const double base = map.Base();
        const std::shared_ptr<const Runs> runs = CollectRuns(context_.plotted.Top(number), context_.area);
        Stretches stretches;
        for (const Sample& sample : runs->samples) {
            const double index = std::floor(
                (context_.area.CategoryX(sample.category) - context_.area.box.left) / ColumnWidth());
            if (stretches.empty() || stretches.back().index != index)
                stretches.push_back({index, base, base});
            const double y = map.At(sample.value);
            if (std::isnan(y)) continue;
            stretches.back().top = std::min(stretches.back().top, y);
            stretches.back().bottom = std::max(stretches.back().bottom, y);
        }
        return stretches;
    }

    /// The tallest first, so that none is hidden whole; piled ones as they cover each other from the axis on.
    void AddColumn(std::vector<std::pair<std::size_t, Stretch>>& column) {
        std::stable_sort(column.begin(), column.end(), [](const auto& one, const auto& other) {
            return one.second.Height() > other.second.Height();
        });
        const double width = ColumnWidth();
        for (const auto& [place, stretch] : column) {
            const int number = series_[place];
            const Brush& brush =
                context_.chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All).Brush;
            const double x = context_.area.box.left + stretch.index * width;
            context_.builder.AddRectangle({PartCode::Series, number},
                                          {x, stretch.top, x + width, stretch.bottom},
                                          FillOfBar(brush, true));
        }
    }

    const PlotContext& context_;
    const std::vector<int>& series_;
    bool plain_;
};

} // namespace

void LayOutBars(const PlotContext& context, const std::vector<int>& series) {
    BarMarks marks(context, series);
    if (context.plot.HasDenseBars())
        marks.Dense();
    else
        marks.Single();
}

} // namespace QmChart6
