#pragma once

namespace QmChart6 {

class ChartControl;
class Viewer;

/// Tells in the viewer's status what of its chart could not be shown as asked; nothing where all of it was.
void TellWarnings(Viewer& viewer, ChartControl& chart);

} // namespace QmChart6
