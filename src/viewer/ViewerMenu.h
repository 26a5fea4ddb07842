#pragma once

#include <QMenu>

namespace QmChart6 {

/// A viewer's context menu. Entries bear their names as object names.
class ViewerMenu : public QMenu {
    Q_OBJECT

public:
    explicit ViewerMenu(QWidget* parent = nullptr);

    /// Gives the first entry the caption of the element that it is for; "" hides it.
    void NameElement(const QString& caption);

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
};

} // namespace QmChart6
