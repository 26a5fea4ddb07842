#pragma once

#include "chartcontrol/model/Drawing.h"

#include <map>

namespace QmChart6 {

/// Size in points.
struct Marker {
    MarkerStyle Style = MarkerStyle::Automatic;
    double Size = 6;

    friend bool operator==(const Marker&, const Marker&) = default;
};

/// A data label: what it shows (Component, the LabelShows... bits), where, and how its numbers are written.
struct DataPointLabel {
    int Component = 0;
    LabelLineStyle LineStyle = LabelLineStyle::None;
    LabelLocation LocationType = LabelLocation::None;
    QString PercentFormat = QStringLiteral("0%");
    QString ValueFormat;
    QmChart6::TextLayout TextLayout;
    Font VtFont;
    /// A text of its own in place of the components, when Custom is set.
    QString Text;
    bool Custom = false;

    void ResetCustomLabel() {
        Text.clear();
        Custom = false;
    }
    friend bool operator==(const DataPointLabel&, const DataPointLabel&) = default;
};

struct DataPoint {
    QmChart6::Brush Brush;
    Pen EdgePen{.Style = PenStyle::None, .Width = 0.75, .VtColor = {}};
    QmChart6::Marker Marker;
    QmChart6::DataPointLabel DataPointLabel;

    friend bool operator==(const DataPoint&, const DataPoint&) = default;
};

/// The points of a series: one look for all of them, and looks of their own for some.
class DataPoints {
public:
    static constexpr int All = -1;

    /// The look of point `index` (from 1), made from the look of all when first written; All is the look of
    /// all. 0 and numbers below All raise error 9.
    [[nodiscard]] DataPoint& Item(int index);
    /// The look that point `index` is drawn with.
    [[nodiscard]] const DataPoint& Item(int index) const;
    [[nodiscard]] bool HasOwn() const { return !own_.empty(); }

    friend bool operator==(const DataPoints&, const DataPoints&) = default;

private:
    DataPoint all_;
    std::map<int, DataPoint> own_;
};

struct SeriesMarker {
    bool Show = false;

    friend bool operator==(const SeriesMarker&, const SeriesMarker&) = default;
};

/// The statistics lines of a series. Flag: the Stat... bits.
struct StatLine {
    int Flag = 0;
    double Width = 1.25;
    Colour VtColor;

    friend bool operator==(const StatLine&, const StatLine&) = default;
};

struct Series {
    QmChart6::SeriesType SeriesType = QmChart6::SeriesType::Bar2D;
    bool ShowLine = true;
    bool SecondaryAxis = false;
    QmChart6::SeriesMarker SeriesMarker;
    QmChart6::StatLine StatLine;
    /// Style and width of the series' line; its colour is the fill colour of all points.
    Pen LinePen{.Style = PenStyle::Solid, .Width = 1.5, .VtColor = {}};
    QmChart6::DataPoints DataPoints;

    friend bool operator==(const Series&, const Series&) = default;
};

} // namespace QmChart6
