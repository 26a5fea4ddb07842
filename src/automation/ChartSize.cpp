#include "automation/ChartSize.h"

#include "base/ProcessState.h"
#include "base/Units.h"
#include "chartcontrol/widget/ChartControl.h"
#include "viewer/GraphForm.h"

namespace QmChart6 {

void SetSizeOfNewCharts(std::optional<QSize> size) {
    Process().sizeOfNewCharts = size;
}

void ApplySizeOfNewCharts(GraphForm& viewer) {
    const std::optional<QSize>& wanted = Process().sizeOfNewCharts;
    if (!wanted) return;
    const QSize now = viewer.ChartImage().size();
    viewer.SetWidth(viewer.Width() + TwipsOfPixels(wanted->width() - now.width()));
    viewer.SetHeight(viewer.Height() + TwipsOfPixels(wanted->height() - now.height()));
}

} // namespace QmChart6
