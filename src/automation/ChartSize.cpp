#include "automation/ChartSize.h"

#include "base/Twips.h"
#include "chartcontrol/widget/ChartControl.h"
#include "viewer/GraphForm.h"

namespace QmChart6 {

namespace {

std::optional<QSize>& SizeOfNewCharts() {
    static std::optional<QSize> size;
    return size;
}

} // namespace

void SetSizeOfNewCharts(std::optional<QSize> size) {
    SizeOfNewCharts() = size;
}

void ApplySizeOfNewCharts(GraphForm& viewer) {
    if (!SizeOfNewCharts()) return;
    const QSize now = viewer.ChartImage().size();
    viewer.SetWidth(viewer.Width() + TwipsOfPixels(SizeOfNewCharts()->width() - now.width()));
    viewer.SetHeight(viewer.Height() + TwipsOfPixels(SizeOfNewCharts()->height() - now.height()));
}

} // namespace QmChart6
