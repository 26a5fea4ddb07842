#include "qmchart6/Host.h"

#include "automation/ViewerList.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/paint/PictureFormat.h"
#include "desktop/Application.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace QmChart6 {

bool HasDisplay() {
    RequireFirstThread();
    return RunsOnADisplay();
}

void RunUntilViewersAreClosed() {
    // Where windows are not seen, nobody can close them.
    if (!HasDisplay()) return;
    while (AnyViewerShown()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Without a running loop Qt would leave closed windows where they are.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void SetFormatsFollowData(bool on) {
    RequireFirstThread();
    LetFormatsFollowData(on);
}

QStringList PictureEndings() {
    return PictureExtensions();
}

void PumpEvents(int milliseconds) {
    RequireFirstThread();
    EnsureApplication();
    QEventLoop loop;
    QTimer::singleShot(qMax(0, milliseconds), &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace QmChart6
