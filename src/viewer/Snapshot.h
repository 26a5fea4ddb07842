#pragma once

#include <QString>

#include <optional>

namespace QmChart6 {

class ChartControl;
class Viewer;

/// The size of a snapshot, in pixels of which so many make an inch.
struct SnapshotSize {
    int width = 0;
    int height = 0;
    double pixelsPerInch = 96;
};

/// Writes the picture of the viewer's chart to a file, in the format of the file's name, and tells so in the
/// viewer's status. An empty name asks the person at the desk, and holds the name that was used on return;
/// when they cancel, nothing is written or told, and the picture stays on the clipboard. Otherwise the
/// clipboard is empty afterwards. Without a size it is the chart's own. Raises what SavePicture raises.
void SaveChartSnapshot(Viewer& viewer, ChartControl& chart, QString& FileName,
                       const std::optional<SnapshotSize>& size = std::nullopt);

} // namespace QmChart6
