#include "automation/ChartSize.h"

#include "base/ProcessState.h"
#include "base/Units.h"
#include "chartcontrol/widget/ChartControl.h"
#include "viewer/GraphForm.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// As many logical pixels as these pixels are long; at least one.
int LogicalPixels(int pixels) {
    return std::max(1, static_cast<int>(std::lround(pixels * PixelsPerInch / Process().pixelsPerInch)));
}

} // namespace

void SetSizeOfNewCharts(std::optional<QSize> size, int pixelsPerInch) {
    Process().sizeOfNewCharts = size;
    Process().pixelsPerInch = pixelsPerInch;
}

void ApplySizeOfNewCharts(GraphForm& viewer) {
    const std::optional<QSize>& wanted = Process().sizeOfNewCharts;
    if (!wanted) return;
    const QSize now = viewer.ChartImage().size();
    viewer.SetWidth(viewer.Width() + TwipsOfPixels(LogicalPixels(wanted->width()) - now.width()));
    viewer.SetHeight(viewer.Height() + TwipsOfPixels(LogicalPixels(wanted->height()) - now.height()));
}

SnapshotSize SizeOfPicture(GraphForm& viewer) {
    const int pixelsPerInch = Process().pixelsPerInch;
    if (const std::optional<QSize>& wanted = Process().sizeOfNewCharts)
        return {wanted->width(), wanted->height(), static_cast<double>(pixelsPerInch)};
    const QSizeF own = QSizeF(viewer.ChartImage().size()) * (pixelsPerInch / PixelsPerInch);
    return {qRound(own.width()), qRound(own.height()), static_cast<double>(pixelsPerInch)};
}

} // namespace QmChart6
