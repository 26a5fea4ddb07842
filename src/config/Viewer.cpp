#include "config/Viewer.h"

#include "chart/DefaultLook.h"
#include "chartcontrol/widget/ChartControl.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace QmChart6 {

void ApplyDefaultLook(Viewer& viewer) {
    ApplyDefaultLook(viewer.ChartImage().Model());
    viewer.ChartImage().Refresh();
    // A person's clicks wait: one could close the very window that is being made.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    viewer.ShowViewer();
}

} // namespace QmChart6
