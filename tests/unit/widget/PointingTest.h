#pragma once

#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/widget/ChartControl.h"
#include "support/SampleCharts.h"

#include <QTest>

#include <gtest/gtest.h>

namespace QmChart6 {

inline constexpr double PixelsPerPointOnScreen = 4.0 / 3;

/// A shown chart control with a title, axis titles, a legend, a footnote and twelve points in four series.
class PointingTest : public testing::Test {
protected:
    PointingTest() {
        chart.Model() = Samples::Named("bar-4-series").make();
        chart.Model().Footnote.Text = QStringLiteral("Source: made up");
        chart.resize(640, 420);
        chart.show();
        QObject::connect(&chart, &ChartControl::PartSelected, [this] { ++selected; });
        QObject::connect(&chart, &ChartControl::PartActivated, [this](int part, int index1, int index2) {
            activated.push_back({part, index1, index2});
        });
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(&chart)); }

    /// A part's place, in pixels: where its topmost shape's bounds have their middle.
    QPoint PlaceOf(const Part& part) {
        const Scene& scene = chart.CurrentScene();
        const std::vector<std::size_t> shapes = Find(scene, part);
        if (shapes.empty()) {
            ADD_FAILURE() << "the chart shows no part " << static_cast<int>(part.code);
            return {};
        }
        const Point center = scene.shapes[shapes.back()].bounds.Center();
        return PixelOf(center);
    }
    static QPoint PixelOf(Point place) {
        return QPointF(place.x * PixelsPerPointOnScreen, place.y * PixelsPerPointOnScreen).toPoint();
    }
    ChartPart PartAtTwips(int x, int y) {
        ChartPart part;
        chart.TwipsToChartPart(x, y, part.part, part.index1, part.index2, part.index3, part.index4);
        return part;
    }
    ChartPart PartAtPixels(const QPoint& place) { return PartAtTwips(place.x() * 15, place.y() * 15); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&chart, key, modifiers); }
    void Click(const QPoint& place, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&chart, Qt::LeftButton, modifiers, place);
    }

    ChartControl chart;
    int selected = 0;
    std::vector<ChartPart> activated;
};

} // namespace QmChart6
