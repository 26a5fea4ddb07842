#pragma once

#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

struct AxisTitle {
    QString Text;
    bool Visible = true;
    Font VtFont;
    QmChart6::TextLayout TextLayout;

    friend bool operator==(const AxisTitle&, const AxisTitle&) = default;
};

/// The labels of an axis. Format as FormatNumber takes it; "" writes as few digits as tell the ticks apart.
struct AxisLabels {
    Font VtFont;
    QString Format;
    QmChart6::TextLayout TextLayout;

    friend bool operator==(const AxisLabels&, const AxisLabels&) = default;
};

/// The levels of an axis' labels; there is one.
class AxisLabelLevels {
public:
    /// Level 1; any other raises error 9.
    [[nodiscard]] AxisLabels& Item(int level);
    [[nodiscard]] const AxisLabels& Item(int level) const;

    friend bool operator==(const AxisLabelLevels&, const AxisLabelLevels&) = default;

private:
    AxisLabels first_;
};

struct AxisGrid {
    Pen MajorPen{.Style = PenStyle::None, .Width = 0.75, .VtColor = {217, 222, 229}};

    friend bool operator==(const AxisGrid&, const AxisGrid&) = default;
};

struct AxisScale {
    /// The axis, its labels and its title are not drawn; its grid lines are.
    bool Hide = false;
    ScaleType Type = ScaleType::Linear;
    QmChart6::PercentBasis PercentBasis = QmChart6::PercentBasis::MaximumOfChart;

    friend bool operator==(const AxisScale&, const AxisScale&) = default;
};

/// The range of a value axis: chosen from the data (Auto), or from Minimum to Maximum in MajorDivision steps.
struct ValueScale {
    bool Auto = true;
    double Minimum = 0;
    double Maximum = 100;
    int MajorDivision = 5;

    friend bool operator==(const ValueScale&, const ValueScale&) = default;
};

struct Axis {
    QmChart6::AxisTitle AxisTitle;
    AxisLabelLevels Labels;
    QmChart6::AxisGrid AxisGrid;
    QmChart6::AxisScale AxisScale;
    QmChart6::ValueScale ValueScale;
    QmChart6::Pen Pen{.Style = PenStyle::Solid, .Width = 0.75, .VtColor = {140, 147, 157}};

    friend bool operator==(const Axis&, const Axis&) = default;
};

} // namespace QmChart6
