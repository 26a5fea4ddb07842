#include "PointingTest.h"

#include "chartcontrol/widget/ViewTurn.h"
#include "desktop/CurrentDesktop.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QToolTip>
#include <QVBoxLayout>

#include <numbers>

namespace QmChart6 {
namespace {

class InputTest : public PointingTest {
protected:
    QString TipAt(const QPoint& place) {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QHelpEvent help(QEvent::ToolTip, place, chart.mapToGlobal(place));
        QApplication::sendEvent(&chart, &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    void Show(const char* sample) {
        chart.Model() = Samples::Named(sample).make();
        chart.Refresh();
    }
    void Drag(const QPoint& from, const QPoint& by) {
        QTest::mousePress(&chart, Qt::LeftButton, Qt::ControlModifier, from);
        QTest::mouseMove(&chart, from + by / 2);
        QTest::mouseMove(&chart, from + by);
        QTest::mouseRelease(&chart, Qt::LeftButton, Qt::ControlModifier, from + by);
    }
};

TEST_F(InputTest, AClickSelectsWhatItMeets) {
    Click(PlaceOf({PartCode::Title}));
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{1}));
    Click(PlaceOf({PartCode::Series, 3, 7}));
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 3, 7}));
    EXPECT_EQ(selected, 2);
    EXPECT_TRUE(activated.empty());
}

TEST_F(InputTest, ADoubleClickActivates) {
    QTest::mouseDClick(&chart, Qt::LeftButton, {}, PlaceOf({PartCode::Legend, 2}));
    EXPECT_EQ(activated, (std::vector<ChartPart>{{3}}));
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{3}));
}

TEST_F(InputTest, HandlesAreSeenOnTheScreenButInNoPicture) {
    const QImage before = chart.grab().toImage();
    chart.SelectPart(1, 0, 0, 0, 0);
    EXPECT_NE(chart.grab().toImage(), before);
    chart.CopyToClipboard();
    const QByteArray picture = CurrentDesktop().Clipboard()->data(QStringLiteral("image/svg+xml"));
    chart.SelectPart(NoPart, 0, 0, 0, 0);
    EXPECT_EQ(chart.grab().toImage(), before);
    chart.CopyToClipboard();
    EXPECT_EQ(CurrentDesktop().Clipboard()->data(QStringLiteral("image/svg+xml")), picture);
    CurrentDesktop().ClearClipboard();
}

TEST_F(InputTest, ARightClickSelectsAndAsksForTheMenuThere) {
    QPoint wanted;
    QObject::connect(&chart, &ChartControl::ContextMenuWanted, [&](const QPoint& place) { wanted = place; });
    const QPoint place = PlaceOf({PartCode::AxisTitle, 1, AnyIndex});
    QTest::mouseClick(&chart, Qt::RightButton, {}, place);
    EXPECT_EQ(wanted, place);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{11, 1, 1}));
}

TEST_F(InputTest, TheMenuKeysAskAtTheSelectedPart) {
    std::vector<QPoint> wanted;
    QObject::connect(&chart, &ChartControl::ContextMenuWanted,
                     [&](const QPoint& place) { wanted.push_back(place); });
    chart.SelectPart(5, 2, 6, 0, 0);
    chart.setFocus();
    QTest::keyClick(chart.windowHandle(), Qt::Key_Menu);
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(PartAtPixels(wanted.front()), (ChartPart{5, 2, 6}));
    QTest::keyClick(chart.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_EQ(wanted.size(), 2U);
    EXPECT_EQ(wanted[1], wanted[0]);
}

TEST_F(InputTest, WhileNobodyTakesTheWishTheParentGetsTheEvents) {
    class Parent : public QWidget {
    public:
        int released = 0;
        int menus = 0;

    protected:
        void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++released; }
        void contextMenuEvent(QContextMenuEvent* /*event*/) override { ++menus; }
    } parent;
    auto* inner = new ChartControl(&parent);
    inner->resize(200, 150);
    parent.show();
    QTest::mouseClick(inner, Qt::RightButton, {}, {50, 50});
    EXPECT_EQ(parent.released, 1);
    QContextMenuEvent keyboard(QContextMenuEvent::Keyboard, {50, 50}, {50, 50});
    QApplication::sendEvent(inner, &keyboard);
    EXPECT_EQ(parent.menus, 1);
    QTest::mouseClick(inner, Qt::LeftButton, {}, {50, 50});
    EXPECT_EQ(parent.released, 1) << "a left click is the chart's own";
}

TEST_F(InputTest, TabWalksThePartsAndLeavesAtTheEnds) {
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit before;
    QLineEdit after;
    layout.addWidget(&before);
    layout.addWidget(&chart);
    layout.addWidget(&after);
    chart.setMinimumSize(640, 420);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    ASSERT_TRUE(chart.hasFocus());
    std::vector<ChartPart> walked;
    while (chart.hasFocus() && walked.size() < 50) {
        walked.push_back(chart.SelectedPart());
        Key(Qt::Key_Tab);
    }
    EXPECT_TRUE(after.hasFocus());
    EXPECT_TRUE(chart.SelectedPart().IsNone());
    const std::vector<ChartPart> expected{{1},       {4},       {5, 1},     {5, 2},     {5, 3}, {5, 4},
                                          {9, 0, 1}, {9, 1, 1}, {11, 0, 1}, {11, 1, 1}, {3},    {2}};
    EXPECT_EQ(walked, expected);
    std::vector<ChartPart> back;
    QTest::keyClick(&after, Qt::Key_Backtab);
    while (chart.hasFocus() && back.size() < 50) {
        back.push_back(chart.SelectedPart());
        Key(Qt::Key_Backtab);
    }
    EXPECT_TRUE(before.hasFocus());
    EXPECT_EQ(back, std::vector<ChartPart>(expected.rbegin(), expected.rend()));
    layout.removeWidget(&chart);
    chart.setParent(nullptr);
}

TEST_F(InputTest, ArrowsWalkPointsAndSeries) {
    chart.setFocus();
    chart.SelectPart(5, 1, 0, 0, 0);
    Key(Qt::Key_Right);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 1, 1}));
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 2, 2}));
    Key(Qt::Key_End);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 2, 12}));
    Key(Qt::Key_Right);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 2, 12})) << "the end of the series";
    Key(Qt::Key_Left);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 2, 11}));
    Key(Qt::Key_Home);
    Key(Qt::Key_Up);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 1, 1}));
    Key(Qt::Key_Up);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 1, 1})) << "the first series";
}

TEST_F(InputTest, ArrowsSkipMissingValues) {
    chart.Model().DataGrid.SetValue(2, 1, Samples::Missing());
    chart.Refresh();
    chart.SelectPart(5, 1, 1, 0, 0);
    Key(Qt::Key_Right);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{5, 1, 3}));
}

TEST_F(InputTest, EnterActivatesAndEscapeSelectsNothing) {
    chart.SelectPart(5, 2, 3, 0, 0);
    Key(Qt::Key_Return);
    EXPECT_EQ(activated, (std::vector<ChartPart>{{5, 2, 3}}));
    Key(Qt::Key_Escape);
    EXPECT_TRUE(chart.SelectedPart().IsNone());
    Key(Qt::Key_Return);
    EXPECT_EQ(activated.size(), 1U);
}

TEST_F(InputTest, ATipTellsSeriesCategoryAndValue) {
    chart.Model().DataGrid.SetValue(5, 2, 61.25);
    chart.Refresh();
    EXPECT_EQ(TipAt(PlaceOf({PartCode::Series, 2, 5})), QStringLiteral("South\nMay: 61.25"));
    EXPECT_EQ(TipAt(PlaceOf({PartCode::Title})), QString());
}

TEST_F(InputTest, ATipOnALineTellsTheNearestPoint) {
    Show("line-4-series");
    const auto place = chart.CurrentLayout().places.At({1, 4});
    ASSERT_TRUE(place.has_value());
    const double value = chart.Model().SeriesValues(1)[3];
    EXPECT_EQ(TipAt(PixelOf(*place)), QStringLiteral("North\nApril: %1").arg(value));
}

TEST_F(InputTest, ATipInAnXYChartTellsBothNumbers) {
    Show("xy-pairs");
    chart.Model().DataGrid.SetValue(1, 1, 210);
    chart.Model().DataGrid.SetValue(1, 2, 62.5);
    chart.Refresh();
    const auto place = chart.CurrentLayout().places.At({1, 1});
    ASSERT_TRUE(place.has_value());
    EXPECT_TRUE(TipAt(PixelOf(*place)).endsWith(QStringLiteral("\n210; 62.5")));
}

TEST_F(InputTest, ANameThatLooksLikeMarkupIsShownAsItIs) {
    chart.Model().DataGrid.SetColumnLabel(2, QStringLiteral("<b>bold</b>"));
    chart.Refresh();
    EXPECT_TRUE(TipAt(PlaceOf({PartCode::Series, 2, 5})).contains(QStringLiteral("&lt;b&gt;bold")));
}

TEST_F(InputTest, DraggingWithControlTurnsAChartInSpace) {
    Show("bar-3d");
    int turned = 0;
    QObject::connect(&chart, &ChartControl::ViewTurned, [&] { ++turned; });
    const View3d before = chart.Model().Plot.View3d;
    const std::size_t firstPoint = chart.CurrentScene().points.size();
    Drag({300, 200}, {40, 20});
    EXPECT_EQ(chart.Model().Plot.View3d, (View3d{before.Rotation + 20, before.Elevation + 10}));
    EXPECT_EQ(turned, 1);
    EXPECT_GT(firstPoint, 0U);
    EXPECT_TRUE(chart.SelectedPart().IsNone());
}

TEST_F(InputTest, DraggingAFlatChartSelectsAndTurnsNothing) {
    const View3d before = chart.Model().Plot.View3d;
    Drag(PlaceOf({PartCode::Title}), {40, 20});
    EXPECT_EQ(chart.Model().Plot.View3d, before);
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{1}));
}

TEST(ViewTurn, RotationGoesRoundAndElevationIsHeld) {
    EXPECT_EQ(TurnedView({350, 80}, AngleUnit::Degrees, 40, 60), (View3d{10, 90}));
    EXPECT_EQ(TurnedView({10, -80}, AngleUnit::Degrees, -40, -60), (View3d{350, -90}));
    EXPECT_EQ(TurnedView({390, 0}, AngleUnit::Gradians, 36, 0), (View3d{10, 0}));
    const View3d radians = TurnedView({0, 0}, AngleUnit::Radians, 360, 9999);
    EXPECT_NEAR(radians.Rotation, std::numbers::pi, 1e-12);
    EXPECT_NEAR(radians.Elevation, std::numbers::pi / 2, 1e-12);
}

} // namespace
} // namespace QmChart6
