#include "config/Viewer.h"

#include "chart/DefaultLook.h"
#include "config/Look.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace QmChart6 {

void ApplyDefaultLook(Viewer& viewer) {
    LookState look = viewer.Look();
    ApplyDefaultLook(look.chart);
    viewer.Show(look);
    // A person's clicks wait: one could close the very window that is being made.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    viewer.Open();
}

bool ShowLook(Viewer& viewer, LookState look, LookReader& reader, bool loadTitles) {
    try {
        if (!ApplyLook(look, reader, loadTitles)) return false;
    } catch (...) {
        viewer.Show(look);
        throw;
    }
    viewer.Show(look);
    return true;
}

} // namespace QmChart6
