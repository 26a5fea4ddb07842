#include "viewer/Snapshot.h"

#include "chartcontrol/paint/PictureFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "desktop/BusyCursor.h"
#include "desktop/CurrentDesktop.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QRegularExpression>

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

/// A title as a file's name that every system takes; "" where nothing is left of it.
QString FileNameOf(QString title) {
    constexpr qsizetype Longest = 80;
    static const QRegularExpression odd(QStringLiteral("[\\x00-\\x1f\\x7f/\\\\:*?\"<>|]+"));
    title = title.replace(odd, QStringLiteral(" ")).simplified().left(Longest).trimmed();
    while (title.startsWith(u'.')) title.remove(0, 1);
    return title;
}

} // namespace

void SaveChartSnapshot(Viewer& viewer, ChartControl& chart, QString& FileName,
                       const std::optional<SnapshotSize>& size) {
    const KeptDirectory directory;
    chart.CopyToClipboard();
    if (FileName.isEmpty()) {
        const std::optional<QString> chosen =
            CurrentDesktop().PickSaveFile(chart.window(), {.title = QStringLiteral("Save as .bmp"),
                                                           .filter = QStringLiteral("*.bmp"),
                                                           .suffix = QStringLiteral("bmp"),
                                                           .name = FileNameOf(chart.Model().Title.Text),
                                                           .forms = PictureExtensions(),
                                                           .formCaption = LocalHint(Hint::PictureForm),
                                                           .refusal = LocalHint(Hint::NoSuchPictureForm)});
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
