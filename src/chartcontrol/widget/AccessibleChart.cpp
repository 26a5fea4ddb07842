#include "chartcontrol/widget/AccessibleChart.h"

#include "base/Units.h"
#include "chartcontrol/layout/SelectionHandles.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/widget/ChartControl.h"
#include "chartcontrol/widget/ChartWords.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <cmath>
#include <map>

namespace QmChart6 {

namespace {

/// So many made data points are kept at most; who walks a large chart has the earlier ones made again.
constexpr std::size_t MostKept = 512;
/// A data point is a square of this many logical pixels round its place.
constexpr int PointExtent = 9;

QPointF PixelOf(Point place) {
    return {place.x / PointsPerPixel, place.y / PointsPerPixel};
}

/// A series (point 0) or a data point of a chart control. It holds numbers only: what it tells is read from
/// the chart when it is asked, and it is no longer valid when the chart has no such point any more.
class AccessiblePart : public QAccessibleInterface {
public:
    AccessiblePart(ChartControl* control, int series, int point)
        : control_(control), series_(series), point_(point) {}

    [[nodiscard]] bool isValid() const override {
        if (control_.isNull()) return false;
        const Chart& chart = std::as_const(*control_).Model();
        return series_ <= chart.Plot.SeriesCollection.Count() && point_ <= chart.CategoryCount();
    }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override {
        return control_.isNull() ? nullptr : control_->window()->windowHandle();
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override {
        return isValid() && point_ == 0 ? std::as_const(*control_).Model().CategoryCount() : 0;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* part = dynamic_cast<const AccessiblePart*>(child);
        return part != nullptr && point_ == 0 && part->series_ == series_ ? part->point_ - 1 : -1;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (!isValid() || kind != QAccessible::Name) return {};
        const Chart& chart = std::as_const(*control_).Model();
        const ChartVocabulary& words = control_->Vocabulary();
        return point_ == 0 ? SeriesWords(words, chart, series_) : PointWords(words, chart, {series_, point_});
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override {
        return point_ == 0 ? QAccessible::List : QAccessible::ListItem;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const ChartPart& selected = control_->SelectedPart();
        state.focusable = true;
        state.selectable = true;
        state.readOnly = true;
        state.selected = selected.IsOfSeries() && selected.index1 == series_ && selected.index2 == point_;
        state.focused = state.selected && control_->hasFocus();
        return state;
    }

    [[nodiscard]] int Series() const { return series_; }

private:
    QPointer<ChartControl> control_;
    int series_;
    int point_;
};

/// Tells assistive technology which series or data point of the control is selected.
void AnnounceSelection(ChartControl& control);

class AccessibleChart : public QAccessibleWidget {
public:
    explicit AccessibleChart(ChartControl* control)
        : QAccessibleWidget(control, QAccessible::Chart),
          selection_(QObject::connect(control, &ChartControl::PartSelected, control,
                                      [control] { AnnounceSelection(*control); })) {}
    ~AccessibleChart() override {
        QObject::disconnect(selection_);
        for (const auto& [part, id] : kept_) QAccessible::deleteAccessibleInterface(id);
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) {
            const QString title = Model().Title.Text.simplified();
            return title.isEmpty() ? Words().chart : title;
        }
        return kind == QAccessible::Description ? ChartWords(Words(), Model())
                                                : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] int childCount() const override { return isValid() ? DrawnBefore(SeriesCount() + 1) : 0; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        if (!isValid() || index < 0) return nullptr;
        for (int series = 1; series <= SeriesCount(); ++series)
            if (IsDrawn(Model(), series) && index-- == 0) return PartOf(series, 0);
        return nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* part = dynamic_cast<const AccessiblePart*>(child);
        return part == nullptr ? -1 : DrawnBefore(part->Series());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = Control().mapFromGlobal(QPoint(x, y));
        int part = 0, series = 0, point = 0, index3 = 0, index4 = 0;
        Control().TwipsToChartPart(TwipsOfPixels(place.x()), TwipsOfPixels(place.y()), part, series, point,
                                   index3, index4);
        return ChartPart{part}.IsOfSeries() ? PartOf(series, point) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        const ChartPart& selected = Control().SelectedPart();
        if (!selected.IsOfSeries() || !Control().hasFocus()) return QAccessibleWidget::focusChild();
        return PartOf(selected.index1, selected.index2);
    }

    /// The series, or the data point, made if it is not kept.
    [[nodiscard]] QAccessibleInterface* PartOf(int series, int point) const {
        const auto known = kept_.find({series, point});
        if (known != kept_.end()) return QAccessible::accessibleInterface(known->second);
        if (point > 0 && points_ >= MostKept) ForgetPoints();
        points_ += point > 0 ? 1 : 0;
        auto* made = new AccessiblePart(&Control(), series, point); // owned by Qt's registry, by its id
        kept_[{series, point}] = QAccessible::registerAccessibleInterface(made);
        return made;
    }

private:
    [[nodiscard]] ChartControl& Control() const { return *static_cast<ChartControl*>(object()); }
    [[nodiscard]] const ChartVocabulary& Words() const { return Control().Vocabulary(); }
    [[nodiscard]] const Chart& Model() const { return std::as_const(Control()).Model(); }
    [[nodiscard]] int SeriesCount() const { return Model().Plot.SeriesCollection.Count(); }
    [[nodiscard]] int DrawnBefore(int series) const {
        int drawn = 0;
        for (int number = 1; number < series; ++number)
            if (IsDrawn(Model(), number)) ++drawn;
        return drawn;
    }
    /// Series stay: whoever walks a series' points is holding it.
    void ForgetPoints() const {
        for (auto at = kept_.begin(); at != kept_.end();) {
            const bool isPoint = at->first.second > 0;
            if (isPoint) QAccessible::deleteAccessibleInterface(at->second);
            at = isPoint ? kept_.erase(at) : std::next(at);
        }
        points_ = 0;
    }

    QMetaObject::Connection selection_;
    mutable std::map<std::pair<int, int>, QAccessible::Id> kept_;
    mutable std::size_t points_ = 0;
};

AccessibleChart* AccessibleOf(ChartControl* control) {
    return dynamic_cast<AccessibleChart*>(QAccessible::queryAccessibleInterface(control));
}

QAccessibleInterface* AccessiblePart::parent() const {
    if (control_.isNull()) return nullptr;
    AccessibleChart* chart = AccessibleOf(control_);
    if (chart == nullptr || point_ == 0) return chart;
    return chart->PartOf(series_, 0);
}

QAccessibleInterface* AccessiblePart::childAt(int x, int y) const {
    const AccessibleChart* chart = control_.isNull() ? nullptr : AccessibleOf(control_);
    QAccessibleInterface* found = chart == nullptr ? nullptr : chart->childAt(x, y);
    return found != nullptr && indexOfChild(found) >= 0 ? found : nullptr;
}

QAccessibleInterface* AccessiblePart::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const AccessibleChart* chart = AccessibleOf(control_);
    return chart == nullptr ? nullptr : chart->PartOf(series_, index + 1);
}

QRect AccessiblePart::rect() const {
    if (!isValid()) return {};
    const LaidOutChart& laidOut = control_->CurrentLayout();
    const QPoint corner = control_->mapToGlobal(QPoint(0, 0));
    if (point_ > 0) {
        const auto place = laidOut.places.At({series_, point_});
        if (!place) return {};
        const QPoint center = PixelOf(*place).toPoint() + corner;
        return {center.x() - PointExtent / 2, center.y() - PointExtent / 2, PointExtent, PointExtent};
    }
    QPolygonF places;
    for (const Point& place : HandlePlaces(laidOut, {PartCode::Series, series_, AnyIndex}))
        places += PixelOf(place);
    if (places.isEmpty()) return {};
    const int half = PointExtent / 2;
    return places.boundingRect()
        .toAlignedRect()
        .adjusted(-half, -half, half + 1, half + 1)
        .translated(corner);
}

void AnnounceSelection(ChartControl& control) {
    if (!QAccessible::isActive()) return;
    AccessibleChart* chart = AccessibleOf(&control);
    const ChartPart& selected = control.SelectedPart();
    if (chart == nullptr || !selected.IsOfSeries()) return;
    QAccessibleInterface* part = chart->PartOf(selected.index1, selected.index2);
    QAccessibleEvent selection(part, QAccessible::Selection);
    QAccessible::updateAccessibility(&selection);
    if (!control.hasFocus()) return;
    QAccessibleEvent focus(part, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
    auto* control = qobject_cast<ChartControl*>(object);
    return control == nullptr ? nullptr : new AccessibleChart(control);
}

} // namespace

void InstallAccessibleCharts() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    static_cast<void>(isInstalled);
}

} // namespace QmChart6
