#include "chart/DefaultLook.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerToolBar.h"

#include <QEvent>
#include <QTest>

using namespace QmChart6;

namespace {

/// Writes down what is done to a window, in its order.
class WindowLog : public QObject {
public:
    explicit WindowLog(QWidget& window) : window_(window) { window.installEventFilter(this); }

    QStringList entries;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize && window_.size() != size_) {
            if (window_.height() != size_.height()) entries.append(QStringLiteral("height"));
            if (window_.width() != size_.width()) entries.append(QStringLiteral("width"));
            size_ = window_.size();
        }
        if (event->type() == QEvent::WindowStateChange)
            entries.append(window_.isMaximized() ? QStringLiteral("maximized") : QStringLiteral("restored"));
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& window_;
    QSize size_ = window_.size();
};

class GraphFormLookTest : public testing::Test {
protected:
    GraphFormLookTest() {
        SetConfigurationFolder(store.Folder());
        Chart& chart = form->ChartImage().Model();
        chart.SetGridSize(3, 2);
        ApplyDefaultLook(chart);
        form->SetGraphId(QStringLiteral("SALES"));
        form->SetQmConfig(QStringLiteral("Look"));
        form->show();
    }

    [[nodiscard]] ViewerToolBar& Bar() const { return *form->findChild<ViewerToolBar*>(); }

    TestStore store{Engine::Sqlite, ConfigurationSchema()};
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    std::shared_ptr<GraphForm> form = std::make_shared<GraphForm>();
};

} // namespace

TEST_F(GraphFormLookTest, ANewWindowHasTheLookThatALookIsMadeWith) {
    const LookState look = GraphForm().Look();
    const LookState made;
    EXPECT_TRUE(LookAlike(look, made));
    EXPECT_FALSE(look.maximized);
    EXPECT_EQ(look.width, made.width);
    // Bars are as high as the desktop's style and font make them.
    EXPECT_NEAR(look.height, made.height, 450);
}

TEST_F(GraphFormLookTest, ItGivesTheLookThatItWasShown) {
    LookState look = form->Look();
    look.chart.SetChartType(ChartType::Line3D);
    look.chart.Title.Text = QStringLiteral("Costs");
    look.lines = 0;
    look.markers = 1;
    look.stacked = -1;
    look.fullStacked = 1;
    look.controlBar = false;
    look.width = 9120;
    look.height = 6405;
    form->Show(look);
    EXPECT_EQ(form->Look(), look);
    EXPECT_EQ(form->size(), QSize(600, 400));
    EXPECT_FALSE(form->ControlBar());
    EXPECT_FALSE(form->Modified());
}

TEST_F(GraphFormLookTest, TheSizeIsSetBeforeItIsMaximized) {
    LookState look = form->Look();
    look.width = 9120;
    look.height = 6405;
    look.maximized = true;
    WindowLog log(*form);
    form->Show(look);
    EXPECT_EQ(log.entries.mid(0, 3),
              QStringList({QStringLiteral("height"), QStringLiteral("width"), QStringLiteral("maximized")}));
    EXPECT_EQ(form->Look(), look);
}

TEST_F(GraphFormLookTest, TheBarFollowsTheLookThatIsShown) {
    LookState look = form->Look();
    look.chart.SetChartType(ChartType::Area3D);
    look.stacked = 1;
    form->Show(look);
    EXPECT_TRUE(Bar().IsPressed(BarButton::ThreeD));
    EXPECT_TRUE(Bar().IsPressed(BarButton::Stack));
    EXPECT_FALSE(Bar().IsPressed(BarButton::FullStack));
}

TEST_F(GraphFormLookTest, WhatLooksTheSameIsNotLaidOutAnew) {
    form->ChartImage().grab();
    const auto* shapes = form->ChartImage().CurrentScene().shapes.data();
    LookState look = form->Look();
    look.chart.Column = 2;
    form->Show(look);
    EXPECT_EQ(form->ChartImage().CurrentScene().shapes.data(), shapes);
    EXPECT_EQ(form->ChartImage().Model().Column, 2);
}

TEST_F(GraphFormLookTest, AMaximizedWindowIsRestoredWhileItIsSavedAndItsNormalSizeIsKept) {
    const LookState normal = form->Look();
    form->SetWindowState(2);
    EXPECT_EQ(form->Look().width, normal.width);
    EXPECT_EQ(form->Look().height, normal.height);
    WindowLog log(*form);
    SaveConfiguration(*form);
    log.entries.removeAll(QStringLiteral("height"));
    log.entries.removeAll(QStringLiteral("width"));
    EXPECT_EQ(log.entries, QStringList({QStringLiteral("restored"), QStringLiteral("maximized")}));
    EXPECT_EQ(form->WindowState(), 2);
    EXPECT_EQ(store.Sql(QStringLiteral("SELECT \"ChartHeight\", \"ChartWidth\" FROM <ChartConfigurations>")),
              (QList<QVariantList>{{normal.height, normal.width}}));
}

TEST_F(GraphFormLookTest, AWindowWhoseSizeCannotBeSavedStaysRestored) {
    store.Sql(QStringLiteral("ALTER TABLE <ChartConfigurations> DROP COLUMN \"ChartHeight\""));
    form->SetWindowState(2);
    SaveConfiguration(*form);
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_EQ(form->WindowState(), 0);
}

TEST_F(GraphFormLookTest, ALoadThatFailsHalfWayShowsWhatWasReadBefore) {
    LookState look = form->Look();
    look.width = 9120;
    look.chart.SetChartType(ChartType::Area2D);
    look.controlBar = false;
    form->Show(look);
    SaveConfiguration(*form);
    look.width = 12120;
    look.chart.SetChartType(ChartType::Bar2D);
    look.controlBar = true;
    form->Show(look);
    store.Sql(QStringLiteral("UPDATE <ChartConfigurations> SET \"Projection\" = 77"));
    LoadConfiguration(*form, QStringLiteral("Look"), true);
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.front().text.startsWith(QStringLiteral("Error 380: ")));
    EXPECT_EQ(form->Width(), 9120);
    EXPECT_EQ(form->ChartImage().Model().chartType(), ChartType::Area2D);
    EXPECT_TRUE(form->ControlBar());
}
