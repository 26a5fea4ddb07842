#pragma once

#include <QMenu>

#include <map>

namespace QmChart6 {

/// A viewer's context menu. Entries bear their names as object names. Those with a key of their own work by
/// it in the whole window.
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
    QAction* optPreview;
    QAction* optSaveBMP;
    QAction* optCopy;
    QAction* optLoadConfig;
    QAction* optSaveConfig;
    QAction* optSaveConfigAs;
    QAction* optKeys;

private:
    void NameElement(const QString& caption);
    /// Gives every entry that is seen a key of its own in its menu.
    void GiveMnemonics();

    std::map<QAction*, QString> captions_;
};

} // namespace QmChart6
