#include "automation/ViewerList.h"
#include "base/Units.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "qmchart6/Host.h"
#include "qmchart6/QMChartArray.h"
#include "support/Samples.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerStatusBar.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// What a desktop does to a viewer's window, and what becomes of its size in stored looks.
class WindowStatesTest : public testing::Test {
protected:
    WindowStatesTest() {
        SetConfigurationFolder(store.Folder());
        QMChartArray().QmMakeGraph(QStringLiteral("sales"), 4, 2, Numbers(4, 2),
                                   Names(QStringLiteral("row"), 4), Names(QStringLiteral("column"), 2),
                                   QStringLiteral("Title"), QStringLiteral("Rows"), QStringLiteral("Columns"),
                                   QStringLiteral("Values"));
        QString id = QStringLiteral("sales");
        viewer = FindViewer(id);
        viewer->SetQmConfig(QStringLiteral("Look"));
    }
    ~WindowStatesTest() override {
        viewer->SetModified(false);
        CloseViewer(QStringLiteral("sales"));
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.get())); }

    /// The window fills its screen, but for the frame round it.
    [[nodiscard]] bool FillsTheScreen() const {
        const QSize room = viewer->screen()->availableSize();
        return room.width() - viewer->width() < 20 && room.height() - viewer->height() < 100;
    }
    void Maximize() {
        viewer->SetWindowState(2);
        ASSERT_TRUE(QTest::qWaitFor([this] { return viewer->isMaximized() && FillsTheScreen(); }));
    }
    void Restore() {
        viewer->SetWindowState(0);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !viewer->isMaximized() && !FillsTheScreen(); }));
    }
    /// Lets the desktop say all that it has to say: a window that was asked for later is there.
    void Settle() {
        QWidget later;
        later.setWindowFlag(Qt::Tool);
        later.resize(50, 50);
        later.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&later));
        QApplication::processEvents();
    }
    void Load(int width, int height, bool maximized) {
        store.Sql(
            QStringLiteral("UPDATE <ChartConfigurations> SET \"ChartWidth\" = %1, \"ChartHeight\" = %2, "
                           "\"ChartMaximized\" = %3")
                .arg(width)
                .arg(height)
                .arg(maximized ? 1 : 0));
        LoadConfiguration(*viewer, QStringLiteral("Look"), true);
    }
    [[nodiscard]] QSize StoredSize() const {
        const QVariantList row =
            store.Sql(QStringLiteral("SELECT \"ChartWidth\", \"ChartHeight\" FROM <ChartConfigurations>"))
                .value(0);
        return {row.value(0).toInt(), row.value(1).toInt()};
    }
    void ExpectThatTheContentFillsTheWindow() const {
        EXPECT_EQ(viewer->windowHandle()->size(), viewer->size());
        const auto& bar = *viewer->findChild<ViewerStatusBar*>(QStringLiteral("sbGraph"));
        EXPECT_EQ(bar.geometry().bottom() + 1, viewer->height());
        EXPECT_EQ(bar.width(), viewer->width());
        EXPECT_NEAR(viewer->ChartImage().width(), viewer->width(), 8);
    }

    const TestStore store{Engine::Sqlite, ConfigurationSchema()};
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    ViewerPointer viewer;
};

} // namespace

TEST_F(WindowStatesTest, SavingAMaximizedLookLeavesItMaximizedAndFilled) {
    const QSize normal(viewer->Width(), viewer->Height());
    Maximize();
    SaveConfiguration(*viewer);
    EXPECT_EQ(StoredSize(), normal);
    Settle();
    EXPECT_TRUE(viewer->isMaximized());
    EXPECT_TRUE(FillsTheScreen());
    ExpectThatTheContentFillsTheWindow();
}

TEST_F(WindowStatesTest, ALookIsSavedTwiceInARowAllTheSame) {
    const QSize normal(viewer->Width(), viewer->Height());
    Maximize();
    SaveConfiguration(*viewer);
    SaveConfiguration(*viewer);
    EXPECT_EQ(StoredSize(), normal);
    Settle();
    EXPECT_TRUE(viewer->isMaximized());
    EXPECT_TRUE(FillsTheScreen());
    ExpectThatTheContentFillsTheWindow();
    Restore();
    EXPECT_EQ(QSize(viewer->Width(), viewer->Height()), normal);
    ExpectThatTheContentFillsTheWindow();
}

TEST_F(WindowStatesTest, TheLookOfANormalWindowLeavesAMaximizedOneMaximized) {
    SaveConfiguration(*viewer);
    Maximize();
    Load(9120, 6405, false); // 600 by 400 pixels inside
    Settle();
    EXPECT_TRUE(viewer->isMaximized());
    EXPECT_TRUE(FillsTheScreen());
    ExpectThatTheContentFillsTheWindow();
    EXPECT_EQ(viewer->Look().width, 9120);
    EXPECT_EQ(viewer->Look().height, 6405);
}

TEST_F(WindowStatesTest, TheSizeOfALookLoadedIntoAMaximizedWindowIsThatOfTheRestoredOne) {
    SaveConfiguration(*viewer);
    Maximize();
    Load(9120, 6405, false);
    SaveConfiguration(*viewer);
    EXPECT_EQ(StoredSize(), QSize(9120, 6405));
    Settle();
    EXPECT_TRUE(FillsTheScreen());
    viewer->SetWindowState(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer->size() == QSize(600, 400); }));
    Settle();
    EXPECT_EQ(viewer->size(), QSize(600, 400));
    EXPECT_FALSE(viewer->isMaximized());
    ExpectThatTheContentFillsTheWindow();
}

TEST_F(WindowStatesTest, AMaximizedLookMaximizesAndKeepsItsNormalSize) {
    SaveConfiguration(*viewer);
    Load(9120, 6405, true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer->isMaximized() && FillsTheScreen(); }));
    Settle();
    EXPECT_EQ(viewer->Look().width, 9120);
    ExpectThatTheContentFillsTheWindow();
    SaveConfiguration(*viewer);
    EXPECT_EQ(StoredSize(), QSize(9120, 6405));
}
