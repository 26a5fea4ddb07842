#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Scene.h"

#include <QWidget>

#include <optional>

namespace QmChart6 {

/// The charting control: a widget that shows a chart. The model is public: whoever changes it calls Refresh,
/// and the next paint lays the chart out anew, once, however many changes there were.
class ChartControl : public QWidget {
    Q_OBJECT

public:
    explicit ChartControl(QWidget* parent = nullptr);
    ~ChartControl() override;

    [[nodiscard]] Chart& Model() { return chart_; }
    [[nodiscard]] const Chart& Model() const { return chart_; }

    /// While off, nothing is painted anew; switching it on refreshes.
    void SetRepaint(bool on);
    [[nodiscard]] bool Repaint() const { return repaint_; }
    void Refresh();

    /// The scene of the model at the widget's size, laid out when it is asked for and out of date.
    [[nodiscard]] const Scene& CurrentScene();

    /// Puts the chart on the clipboard as SVG, PNG, BMP, EMF, PDF and its table as tab-separated text, each
    /// made when it is asked for, all from the chart as it is now.
    void CopyToClipboard() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Device pixels to a point where the widget is shown now.
    [[nodiscard]] double PixelsPerPoint() const;

    Chart chart_;
    std::optional<Scene> scene_;
    double scenePixelsPerPoint_ = 0;
    bool repaint_ = true;
};

} // namespace QmChart6
