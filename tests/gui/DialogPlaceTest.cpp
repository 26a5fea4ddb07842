#include "automation/ViewerList.h"
#include "chartcontrol/widget/ChartControl.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/QtDesktop.h"
#include "dialogs/GraphTypes.h"
#include "qmchart6/Host.h"
#include "qmchart6/QMChartArray.h"
#include "support/Person.h"
#include "support/Samples.h"
#include "viewer/GraphForm.h"

#include <QMenu>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// Where the graph dialog stands on a screen, and how much of it, in each language.
class DialogPlaceTest : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        if (!HasDisplay()) GTEST_SKIP() << "there is no screen with a desktop";
        QMChartArray().QmMakeGraph(QStringLiteral("sales"), 4, 2, Numbers(4, 2),
                                   Names(QStringLiteral("row"), 4), Names(QStringLiteral("column"), 2),
                                   QStringLiteral("Title"), QStringLiteral("Rows"), QStringLiteral("Columns"),
                                   QStringLiteral("Values"), static_cast<std::int16_t>(GetParam()));
        QString id = QStringLiteral("sales");
        viewer = FindViewer(id);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.get()));
        viewer->move(0, 0);
        if (QGuiApplication::platformName() == QLatin1String("xcb")) {
            ASSERT_TRUE(
                QTest::qWaitFor([this] { return viewer->frameGeometry().topLeft() == QPoint(0, 0); }));
        }
    }
    void TearDown() override { CloseViewer(QStringLiteral("sales")); }

    void Open(const std::function<void(GraphTypes&)>& look) {
        Person<GraphTypes> person([&](GraphTypes& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
            look(dialog);
            dialog.reject();
        });
        viewer->findChild<QAction*>(QStringLiteral("optChart"))->trigger();
        EXPECT_TRUE(person.WasAsked());
    }

    QtDesktop desktop;
    ScopedDesktop scope{desktop};
    ViewerPointer viewer;
};

int Area(const QRect& rect) {
    return std::max(0, rect.width()) * std::max(0, rect.height());
}

} // namespace

TEST_P(DialogPlaceTest, AllOfItIsOnTheScreen) {
    Open([](const GraphTypes& dialog) {
        const QRect room = dialog.screen()->availableGeometry();
        EXPECT_TRUE(QTest::qWaitFor([&] { return room.contains(dialog.frameGeometry()); }))
            << dialog.frameGeometry().width() << " x " << dialog.frameGeometry().height();
    });
}

TEST_P(DialogPlaceTest, ItIsNoWiderThanItNeedsAndLeavesTheChartToBeSeen) {
    if (viewer->screen()->availableSize().width() < 1200) GTEST_SKIP() << "there is no room beside the chart";
    if (QGuiApplication::platformName() == QLatin1String("wayland"))
        GTEST_SKIP() << "there, windows stand where the desktop puts them";
    Open([this](const GraphTypes& dialog) {
        EXPECT_LE(dialog.width(), 700);
        const ChartControl& chart = viewer->ChartImage();
        const QRect seen(chart.mapToGlobal(QPoint()), chart.size());
        EXPECT_LT(Area(seen.intersected(dialog.frameGeometry())), Area(seen) / 3);
    });
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, DialogPlaceTest, testing::Range(0, 4));
