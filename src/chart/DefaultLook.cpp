#include "chart/DefaultLook.h"

#include "chart/ValueLabelFormat.h"

#include <array>

namespace QmChart6 {

namespace {

constexpr int BlockLength = 30; // series until the pattern starts over
constexpr int Step = 40;        // between two levels of a component
constexpr int TopLevel = 5;

const QString& FontFamily() {
    static const QString family = QStringLiteral("Arial");
    return family;
}

/// The level below, where the lowest one gives way to the top again.
int LevelBelow(int level) {
    return level - 1 == 1 ? TopLevel : level - 1;
}

/// Components addressed round the circle of three, so that -1 is the last.
class Components {
public:
    void Set(int place, int level) {
        values_[static_cast<std::size_t>(((place % 3) + 3) % 3)] = static_cast<std::uint8_t>(Step * level);
    }
    [[nodiscard]] Colour Get() const { return {values_[0], values_[1], values_[2]}; }

private:
    std::array<std::uint8_t, 3> values_{};
};

void DressValueAxis(Axis& axis, Orientation titleOrientation) {
    axis.AxisGrid.MajorPen.Style = PenStyle::Dotted;
    axis.Labels.Item(1).Format = ValueLabelFormat();
    axis.AxisTitle.TextLayout.Orientation = titleOrientation;
}

} // namespace

Colour SeriesDefaultColor(int i) {
    Components components;
    const int n = i - 1;
    const int q = n / BlockLength;
    const int m = n - BlockLength * q;
    const int level = TopLevel - (q % 4);

    components.Set(m, level);
    if (m < 3) return components.Get();
    if (m < 6) {
        components.Set(m + 1, level);
        return components.Get();
    }
    const int second = LevelBelow(level);
    if (m < 15) components.Set(m + 1, second);
    if (m > 11 && m < 21) components.Set(m - 1, second);
    const int third = LevelBelow(second);
    if (m >= 18 && m < 27) components.Set(m + 1, third);
    if ((m >= 9 && m <= 11) || m >= 24) components.Set(m - 1, third);
    return components.Get();
}

void ApplyDefaultLook(Chart& chart) {
    chart.Backdrop.Fill.Brush.FillColor.Set(255, 255, 255);
    if (chart.ColumnCount() >= 2) {
        chart.ShowLegend = true;
        chart.LegendFollowsData = false; // from here on the legend stays, however many series come next
    }
    chart.Title.VtFont.Name = FontFamily();
    chart.Legend.VtFont.Name = FontFamily();

    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY, AxisId::Z}) {
        Axis& axis = chart.Plot.Axis(id);
        axis.AxisTitle.VtFont.Name = FontFamily();
        axis.Labels.Item(1).VtFont.Name = FontFamily();
    }
    DressValueAxis(chart.Plot.Axis(AxisId::Y), Orientation::Up);
    DressValueAxis(chart.Plot.Axis(AxisId::SecondaryY), Orientation::Down);
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = true;

    for (int i = 1; i <= chart.Plot.SeriesCollection.Count(); ++i) {
        DataPoint& points = chart.Plot.SeriesCollection(i).DataPoints.Item(DataPoints::All);
        points.Brush.FillColor = SeriesDefaultColor(i);
        points.DataPointLabel.VtFont.Name = FontFamily();
        points.DataPointLabel.ValueFormat = ValueLabelFormat();
    }
}

} // namespace QmChart6
