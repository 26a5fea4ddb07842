#include "viewer/Snapshot.h"

#include "chartcontrol/paint/PictureFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "desktop/BusyCursor.h"
#include "desktop/CurrentDesktop.h"
#include "text/LocalText.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>

namespace QmChart6 {

namespace {

/// Puts the process' current directory back to where it was, whatever way a snapshot ends.
class KeptDirectory {
public:
    KeptDirectory() : path_(QDir::currentPath()) {}
    ~KeptDirectory() { Restore(); }
    KeptDirectory(const KeptDirectory&) = delete;
    KeptDirectory& operator=(const KeptDirectory&) = delete;

    void Restore() const { QDir::setCurrent(path_); }

private:
    QString path_;
};

} // namespace

void SaveChartSnapshot(Viewer& viewer, ChartControl& chart, QString& FileName,
                       const std::optional<SnapshotSize>& size) {
    const KeptDirectory directory;
    chart.CopyToClipboard();
    if (FileName.isEmpty()) {
        const std::optional<QString> chosen =
            CurrentDesktop().PickSaveFile(chart.window(), {.title = QStringLiteral("Save as .bmp"),
                                                           .filter = QStringLiteral("*.bmp"),
                                                           .suffix = QStringLiteral("bmp")});
        if (!chosen) return;
        FileName = *chosen;
        directory.Restore();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const SnapshotSize taken = size.value_or(SnapshotSize{chart.width(), chart.height()});
    {
        const BusyCursor busy;
        SavePicture({chart.Model(), taken.width, taken.height, taken.pixelsPerInch}, FileName);
    }
    directory.Restore();
    CurrentDesktop().ClearClipboard();
    viewer.SetStatus(LocalText(TextKey::SnapshotSaved));
}

} // namespace QmChart6
