#pragma once

#include <QString>

namespace QmChart6 {

class ChartControl;
class Viewer;

/// Writes the picture of the viewer's chart to a file, in the format of the file's name, and tells so in the
/// viewer's status. An empty name asks the person at the desk, and holds the name that was used on return;
/// when they cancel, nothing is written or told, and the picture stays on the clipboard. Otherwise the
/// clipboard is empty afterwards. Raises what SavePicture raises.
void SaveChartSnapshot(Viewer& viewer, ChartControl& chart, QString& FileName);

} // namespace QmChart6
