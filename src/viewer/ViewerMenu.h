#pragma once

#include <QMenu>

namespace QmChart6 {

/// A viewer's context menu. Entries bear their names as object names.
class ViewerMenu : public QMenu {
    Q_OBJECT

public:
    explicit ViewerMenu(QWidget* parent = nullptr);

    /// Shows itself with the caption of the element that the first entry is for; "" hides that entry.
    void ShowFor(const QString& caption, const QPoint& globalPlace);

    QAction* optGenericProperties;
    QAction* optChart;
    QAction* optControlBar;
    QMenu* optSendTo;
    QAction* optPrint;
    QAction* optSaveBMP;
    QAction* optCopy;
    QAction* optLoadConfig;
    QAction* optSaveConfig;
    QAction* optSaveConfigAs;

private:
    void NameElement(const QString& caption);
};

} // namespace QmChart6
