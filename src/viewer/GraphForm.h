#pragma once

#include "config/Viewer.h"

#include <QWidget>

#include <functional>
#include <memory>

class QTimer;

namespace QmChart6 {

class ControlBarCommands;
class ElementEditing;
class LookChanges;
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
    void SetGraphId(const QString& id) override;
    [[nodiscard]] QString QmConfig() const override;
    void SetQmConfig(const QString& name) override;
    void SetStatus(const QString& message) override;

    [[nodiscard]] int WindowState() const override;
    void SetWindowState(int state) override;
    [[nodiscard]] int Height() const override;
    void SetHeight(int twips) override;
    [[nodiscard]] int Width() const override;
    void SetWidth(int twips) override;

    [[nodiscard]] bool ControlBar() const override;
    void SetControlBar(bool shown) override;

    [[nodiscard]] std::int16_t Stacked() const override { return stacked_; }
    void SetStacked(std::int16_t state) override { stacked_ = state; }
    [[nodiscard]] std::int16_t FullStacked() const override { return fullStacked_; }
    void SetFullStacked(std::int16_t state) override { fullStacked_ = state; }
    [[nodiscard]] std::int16_t Lines() const override { return lines_; }
    void SetLines(std::int16_t state) override { lines_ = state; }
    [[nodiscard]] std::int16_t Markers() const override { return markers_; }
    void SetMarkers(std::int16_t state) override { markers_ = state; }

    [[nodiscard]] ChartControl& ChartImage() override { return *chartImage_; }
    void ShowViewer() override;

    /// Shows the window as it was before it was minimized, above the others.
    void BringUp();

    /// The chart's options changed since its look was last kept; asked about on closing.
    [[nodiscard]] bool Modified() const { return modified_; }
    void SetModified(bool modified) { modified_ = modified; }
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
    /// Within a command of a person: what was changed until now is a step of its own.
    void EndStep();
    /// Within a command of a person: what was changed since the last step is none.
    void DropStep();
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

    void PlaceParts();
    void ConnectCommands();
    void ConnectMenu();
    void ConnectChart();
    void ConnectKeys();
    /// `caption` names the element that the menu is for; "" for none.
    void ShowMenu(const QPoint& globalPlace, const QString& caption = {});
    void AskToSave();
    /// Does what a command of the window's own asks for, as one step that can be taken back.
    void Do(const std::function<void()>& command);

    ChartControl* chartImage_;
    ViewerToolBar* tbControlBar_;
    std::unique_ptr<ControlBarCommands> commands_;
    std::unique_ptr<ElementEditing> editing_;
    std::unique_ptr<LookChanges> changes_;
    ViewerStatusBar* sbGraph_;
    ViewerMenu* mProperties_;
    QTimer* timGraph_;
    std::int16_t stacked_ = 0;
    std::int16_t fullStacked_ = 0;
    std::int16_t lines_ = 1;
    std::int16_t markers_ = 0;
    bool modified_ = false;
    bool firstPaintPending_ = true;
    int ownEvents_ = 0;
    bool closed_ = false;
};

} // namespace QmChart6
