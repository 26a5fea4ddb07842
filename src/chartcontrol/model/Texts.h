#pragma once

#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

/// The chart's title or its footnote. Without text it takes no room.
struct Title {
    QString Text;
    Font VtFont;
    QmChart6::TextLayout TextLayout;
    QmChart6::Location Location;
    QmChart6::Backdrop Backdrop{.Frame = {}, .Fill = {.Style = FillStyle::None, .Brush = {}}};

    friend bool operator==(const Title&, const Title&) = default;
};

/// The box that names the series. Whether it is shown is the chart's ShowLegend.
struct Legend {
    Font VtFont;
    QmChart6::TextLayout TextLayout;
    QmChart6::Location Location{.LocationType = LocationType::Right, .Rect = {}};
    QmChart6::Backdrop Backdrop{.Frame = {}, .Fill = {.Style = FillStyle::None, .Brush = {}}};

    friend bool operator==(const Legend&, const Legend&) = default;
};

} // namespace QmChart6
