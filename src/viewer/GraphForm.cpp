#include "viewer/GraphForm.h"

#include "base/Units.h"
#include "chartcontrol/model/Places.h"
#include "chartcontrol/widget/AccessibleChart.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/ShowErrors.h"
#include "qmchart6/RuntimeError.h"
#include "text/Languages.h"
#include "text/LocalText.h"
#include "viewer/ChartWarnings.h"
#include "viewer/ControlBarCommands.h"
#include "viewer/ElementEditing.h"
#include "viewer/LookChanges.h"
#include "viewer/RestoredSize.h"
#include "viewer/ViewerCommands.h"
#include "viewer/ViewerLayout.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTimer>

namespace QmChart6 {

namespace {

// The chart's size in a new window, in logical pixels.
constexpr int ChartWidth = 760;
constexpr int ChartHeight = 480;
constexpr int StatusTime = 2000; // milliseconds

/// Tells the places that were chosen by hand for a chart of that size: all, or those that are told for none.
void TellPlaces(Chart& chart, Coordinate size, bool all) {
    for (Location* location : {&chart.Title.Location, &chart.Footnote.Location, &chart.Legend.Location})
        if (location->LocationType == LocationType::Custom && (all || location->Within == Coordinate{}))
            *location = LocationIn(*location, size);
}

} // namespace

/// Keeps the form alive until the event is over, also when a message box waits in the middle of it.
class GraphForm::OwnEvent {
public:
    explicit OwnEvent(GraphForm& form) : form_(form), self_(form.weak_from_this().lock()) {
        ++form_.ownEvents_;
    }
    ~OwnEvent() {
        self_.reset(); // the last owner's deleter must still see the event
        --form_.ownEvents_;
    }
    OwnEvent(const OwnEvent&) = delete;
    OwnEvent& operator=(const OwnEvent&) = delete;

private:
    GraphForm& form_;
    std::shared_ptr<GraphForm> self_;
};

struct GraphForm::Commands {
    explicit Commands(GraphForm& form)
        : changes(form, form.shown_), bar(form, form.shown_, changes, *form.tbControlBar_),
          editing(form, form.shown_, changes, bar),
          all({form, form.shown_, changes, bar, editing, *form.tbControlBar_, *form.mProperties_},
              [&form](const std::function<void()>& command) {
                  const OwnEvent event(form);
                  command();
              }) {}

    LookChanges changes;
    ControlBarCommands bar;
    ElementEditing editing;
    ViewerCommands all;
};

GraphForm::GraphForm(QWidget* parent)
    : QWidget(parent, Qt::Window), chartImage_(new ChartControl(this)), restoredSize_(new RestoredSize(this)),
      shown_{.chart = *chartImage_}, tbControlBar_(new ViewerToolBar(this)),
      sbGraph_(new ViewerStatusBar(this)), mProperties_(new ViewerMenu(this)), timGraph_(new QTimer(this)),
      commands_(std::make_unique<Commands>(*this)) {
    InstallAccessibleCharts();
    setObjectName(QStringLiteral("GraphForm"));
    // Closing the last chart must not end a host's event loop.
    setAttribute(Qt::WA_QuitOnClose, false);
    chartImage_->setObjectName(QStringLiteral("ChartImage"));
    chartImage_->SetVocabulary(LanguageOrEnglish(LanguageCode()).words->chart());
    sbGraph_->setObjectName(QStringLiteral("sbGraph"));
    timGraph_->setObjectName(QStringLiteral("timGraph"));
    timGraph_->setSingleShot(true);
    timGraph_->setInterval(StatusTime);
    connect(timGraph_, &QTimer::timeout, this, [this] { sbGraph_->Panel(4).SetText({}); });
    mProperties_->optControlBar->setChecked(true);

    chartImage_->resize(ChartWidth, ChartHeight);
    tbControlBar_->ensurePolished();
    sbGraph_->ensurePolished();
    resize(ChartWidth + PixelsOfTwips(ReservedWidth - NominalFrameWidth),
           ChartHeight + PixelsOfTwips(ReservedHeight - NominalFrameHeight) +
               tbControlBar_->sizeHint().height() + sbGraph_->sizeHint().height());
    PlaceParts();
}

GraphForm::~GraphForm() = default;

void GraphForm::Undo() {
    commands_->all.Undo();
}

void GraphForm::Redo() {
    commands_->all.Redo();
}

void GraphForm::RestartHistory() {
    commands_->changes.Restart();
}

QString GraphForm::GraphId() const {
    return sbGraph_->Panel(1).Text();
}

void GraphForm::SetGraphId(const QString& id) {
    sbGraph_->Panel(1).SetText(id);
}

QString GraphForm::QmConfig() const {
    return sbGraph_->Panel(2).Text();
}

void GraphForm::SetQmConfig(const QString& name) {
    sbGraph_->Panel(2).SetText(name);
}

void GraphForm::SetStatus(const QString& message) {
    sbGraph_->Panel(4).SetText(message);
    // A timer that runs is left to run: a message is shown until it fires.
    if (!timGraph_->isActive()) timGraph_->start();
}

LookState GraphForm::Look() const {
    LookState look{.chart = chartImage_->Model(),
                   .lines = shown_.lines,
                   .markers = shown_.markers,
                   .stacked = shown_.stacked,
                   .fullStacked = shown_.fullStacked,
                   .controlBar = ControlBar(),
                   .maximized = isMaximized(),
                   .width = Width(),
                   .height = Height(),
                   .extras = shown_.extras};
    TellPlaces(look.chart, ChartSizeIn(look), true);
    return look;
}

void GraphForm::Show(const LookState& look) {
    const LookState before = Look();
    if (look.height != before.height) SetHeight(look.height);
    if (look.width != before.width) SetWidth(look.width);
    if (look.maximized != isMaximized()) SetWindowState(look.maximized ? 2 : 0);
    chartImage_->Model() = look.chart;
    TellPlaces(chartImage_->Model(), ChartSizeIn(look), false);
    shown_.lines = look.lines;
    shown_.markers = look.markers;
    shown_.stacked = look.stacked;
    shown_.fullStacked = look.fullStacked;
    shown_.extras = look.extras;
    if (LookAlike(look, before)) return;
    if (look.controlBar != before.controlBar) SetControlBar(look.controlBar);
    SyncControlBar();
    chartImage_->Refresh();
    if (look.chart.chartType() != before.chart.chartType()) TellWarnings(*this, *chartImage_);
}

int GraphForm::WindowState() const {
    if (isMinimized()) return 1;
    return isMaximized() ? 2 : 0;
}

void GraphForm::SetWindowState(int state) {
    if (state < 0 || state > 2)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a window state is from 0 to 2, not %1").arg(state));
    restoredSize_->Asked();
    const Qt::WindowStates others =
        windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
    setWindowState(others | (state == 1   ? Qt::WindowMinimized
                             : state == 2 ? Qt::WindowMaximized
                                          : Qt::WindowNoState));
}

int GraphForm::Height() const {
    return TwipsOfPixels(restoredSize_->Get().height()) + NominalFrameHeight;
}

void GraphForm::SetHeight(int twips) {
    restoredSize_->Set({restoredSize_->Get().width(), PixelsOfTwips(qMax(0, twips - NominalFrameHeight))});
    PlaceParts(); // a window that is not shown hears of its size too late
}

int GraphForm::Width() const {
    return TwipsOfPixels(restoredSize_->Get().width()) + NominalFrameWidth;
}

void GraphForm::SetWidth(int twips) {
    restoredSize_->Set({PixelsOfTwips(qMax(0, twips - NominalFrameWidth)), restoredSize_->Get().height()});
    PlaceParts();
}

bool GraphForm::ControlBar() const {
    return !tbControlBar_->isHidden();
}

void GraphForm::SetControlBar(bool shown) {
    tbControlBar_->setVisible(shown);
    mProperties_->optControlBar->setChecked(shown);
    PlaceParts();
    RefreshControlBar();
}

void GraphForm::Open() {
    if (!closed_ && !isVisible()) show();
}

void GraphForm::BringUp() {
    if (WindowState() == 1) SetWindowState(0);
    show();
    raise();
    activateWindow();
}

bool GraphForm::Busy() const {
    return commands_->bar.Busy();
}

int GraphForm::Selected() const {
    return commands_->bar.Selected();
}

void GraphForm::SetSelected(int type) {
    commands_->bar.SetSelected(type);
}

void GraphForm::RefillChartTypeList() {
    commands_->bar.RefillChartTypeList();
}

void GraphForm::SyncControlBar() {
    commands_->bar.FollowChart();
}

void GraphForm::RefreshControlBar() {
    commands_->bar.Refresh();
}

void GraphForm::PlaceParts() {
    const int barHeight = tbControlBar_->sizeHint().height();
    const int statusHeight = sbGraph_->sizeHint().height();
    tbControlBar_->setGeometry(0, 0, width(), barHeight);
    sbGraph_->setGeometry(0, height() - statusHeight, width(), statusHeight);

    chartImage_->SetRepaint(false);
    chartImage_->setGeometry(ChartPlaceIn(size(), ControlBar()));
    chartImage_->SetRepaint(true);
}

QRect GraphForm::ChartPlaceIn(QSize window, bool controlBar) const {
    const ChartPlace place =
        PlaceChart({.width = TwipsOfPixels(window.width()) + NominalFrameWidth,
                    .height = TwipsOfPixels(window.height()) + NominalFrameHeight,
                    .statusBarHeight = TwipsOfPixels(sbGraph_->sizeHint().height()),
                    .controlBarTop = 0,
                    .controlBarHeight = TwipsOfPixels(tbControlBar_->sizeHint().height()),
                    .controlBarVisible = controlBar});
    return PixelsOfPlace(place, chartImage_->geometry());
}

Coordinate GraphForm::ChartSizeIn(const LookState& look) const {
    const QSize window(PixelsOfTwips(look.width - NominalFrameWidth),
                       PixelsOfTwips(look.height - NominalFrameHeight));
    const QSize chart = ChartPlaceIn(window, look.controlBar).size();
    return {chart.width() * PointsPerPixel, chart.height() * PointsPerPixel};
}

void GraphForm::paintEvent(QPaintEvent* event) {
    if (firstPaintPending_) {
        firstPaintPending_ = false;
        SyncControlBar();
    }
    QWidget::paintEvent(event);
}

void GraphForm::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceParts();
}

void GraphForm::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    PlaceParts();
}

void GraphForm::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) PlaceParts();
}

void GraphForm::closeEvent(QCloseEvent* close) {
    close->accept();
    if (closed_) return;
    closed_ = true;
    const OwnEvent event(*this);
    if (shown_.modified) ShowErrors(this, [this] { AskToSave(); });
    Q_EMIT Closed();
}

void GraphForm::AskToSave() {
    const Answer answer =
        CurrentDesktop().ShowMessage(this, LocalText(TextKey::SaveCurrentConfiguration),
                                     LocalText(TextKey::SaveConfiguration), MessageButtons::YesNo);
    if (answer == Answer::Yes) SaveConfiguration(*this);
}

void GraphForm::mouseReleaseEvent(QMouseEvent* event) {
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton) mProperties_->ShowFor({}, event->globalPosition().toPoint());
}

void GraphForm::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse's own is shown on release, so that a press can still be taken elsewhere.
    if (event->reason() == QContextMenuEvent::Mouse) return;
    mProperties_->ShowFor({}, event->globalPos());
}

} // namespace QmChart6
