#pragma once

#include "config/Viewer.h"
#include "viewer/ShownLook.h"

#include <QWidget>

#include <memory>

class QTimer;

namespace QmChart6 {

class ChartControl;
class RestoredSize;
class ViewerMenu;
class ViewerStatusBar;
class ViewerToolBar;

/// The window that shows one chart: control bar, chart, status bar, context menu. Its texts are those of the
/// language at the time it is made; raises 326 where that language has none.
///
/// A form that a shared pointer owns stays alive while it handles an event of its own, whoever lets go of it
/// meanwhile.
class GraphForm final : public QWidget, public Viewer, public std::enable_shared_from_this<GraphForm> {
    Q_OBJECT

public:
    explicit GraphForm(QWidget* parent = nullptr);
    ~GraphForm() override;

    [[nodiscard]] QString GraphId() const override;
    void SetGraphId(const QString& id);
    [[nodiscard]] QString QmConfig() const override;
    void SetQmConfig(const QString& name) override;
    void SetStatus(const QString& message) override;

    [[nodiscard]] LookState Look() const override;
    void Show(const LookState& look) override;
    void Open() override;
    [[nodiscard]] QWidget* Window() override { return this; }

    /// 0 normal, 1 minimized, 2 maximized; setting another number raises error 380.
    [[nodiscard]] int WindowState() const;
    void SetWindowState(int state);

    // In twips, of the whole window while it is not maximized; a maximized one takes them when it is
    // restored.
    [[nodiscard]] int Height() const;
    void SetHeight(int twips);
    [[nodiscard]] int Width() const;
    void SetWidth(int twips);

    [[nodiscard]] bool ControlBar() const;
    void SetControlBar(bool shown);

    [[nodiscard]] ChartControl& ChartImage() { return *chartImage_; }

    /// Shows the window as it was before it was minimized, above the others.
    void BringUp();

    /// The chart's options changed since its look was last kept; asked about on closing.
    [[nodiscard]] bool Modified() const { return shown_.modified; }
    void SetModified(bool modified) { shown_.modified = modified; }
    /// The program itself sets the control bar's buttons.
    [[nodiscard]] bool Busy() const;
    /// Nothing was painted yet, so the control bar has not been brought in step with the chart.
    [[nodiscard]] bool FirstPaintPending() const { return firstPaintPending_; }

    /// An event of its own is on the way, so it may not be deleted at once.
    [[nodiscard]] bool HandlesOwnEvent() const { return ownEvents_ > 0; }

    /// The number of the chart type that the control bar stands for, and putting the bar and the chart there.
    /// Raises 380 for a number that is no chart type, or one that the chart cannot be.
    [[nodiscard]] int Selected() const;
    void SetSelected(int type);
    /// Lists anew the chart types that there are to choose from, and gives the chart the selected one.
    void RefillChartTypeList();

    /// Brings the control bar in step with the chart; does nothing while the bar is hidden.
    void SyncControlBar();
    /// The same, and lays the chart out anew.
    void RefreshControlBar();

    /// Take back the last step of what a person did to the look, and do it again; nothing where there is
    /// none.
    void Undo();
    void Redo();
    /// The host changed the chart: nothing from before can be taken back.
    void RestartHistory();

Q_SIGNALS:
    /// The window was closed, by whomever, and is not coming back.
    void Closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* close) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class OwnEvent;

    /// A person's commands, with what they work on.
    struct Commands;

    void PlaceParts();
    /// Where the chart stands in a window of that size, in logical pixels.
    [[nodiscard]] QRect ChartPlaceIn(QSize window, bool controlBar) const;
    /// The size of the chart in a window of the look's size, in points.
    [[nodiscard]] Coordinate ChartSizeIn(const LookState& look) const;
    void AskToSave();

    ChartControl* chartImage_;
    RestoredSize* restoredSize_;
    ShownLook shown_;
    ViewerToolBar* tbControlBar_;
    ViewerStatusBar* sbGraph_;
    ViewerMenu* mProperties_;
    QTimer* timGraph_;
    std::unique_ptr<Commands> commands_;
    bool firstPaintPending_ = true;
    int ownEvents_ = 0;
    bool closed_ = false;
};

} // namespace QmChart6
