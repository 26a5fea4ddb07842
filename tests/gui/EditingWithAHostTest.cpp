#include "automation/ViewerList.h"
#include "config/ConfigurationFolder.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "qmchart6/QMChartArray.h"
#include "support/ChartDesk.h"
#include "support/Person.h"
#include "support/Samples.h"
#include "support/ScriptedDesktop.h"

#include <QLineEdit>
#include <QPointer>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// A person edits a chart while its host goes on.
class EditingWithAHostTest : public testing::Test {
protected:
    EditingWithAHostTest() { MakeGraph(4, 3); }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.data())); }
    ~EditingWithAHostTest() override {
        if (!viewer.isNull()) viewer->SetModified(false);
        CloseViewer(QStringLiteral("sales"));
    }

    void MakeGraph(std::int16_t rows, std::int16_t columns) {
        QMChartArray().QmMakeGraph(QStringLiteral("sales"), rows, columns, Numbers(rows, columns),
                                   Names(QStringLiteral("row"), rows),
                                   Names(QStringLiteral("column"), columns), QStringLiteral("Turnover"),
                                   QStringLiteral("Rows"), QStringLiteral("Columns"),
                                   QStringLiteral("Values"));
        QString id = QStringLiteral("sales");
        viewer = FindViewer(id).get();
    }
    [[nodiscard]] Chart& Model() const { return viewer->ChartImage().Model(); }
    void Open(Part part) const { DoubleClick(*viewer, PlaceOf(viewer->ChartImage(), part)); }

    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    QPointer<GraphForm> viewer;
};

} // namespace

TEST_F(EditingWithAHostTest, ASeriesThatTheHostTookAwayIsAnErrorInABox) {
    Person<GraphSeriesProperties> person([this](GraphSeriesProperties& dialog) {
        MakeGraph(4, 2);
        ClickIn(dialog, "btnOK");
    });
    Open({PartCode::Series, 3, AnyIndex});
    EXPECT_TRUE(person.WasAsked());
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages[0].text.startsWith(QStringLiteral("Error 91: ")));
    EXPECT_EQ(Model().ColumnCount(), 2);
    EXPECT_TRUE(viewer->isVisible());
}

TEST_F(EditingWithAHostTest, ASeriesThatIsStillThereIsWrittenIntoTheNewTable) {
    Person<GraphSeriesProperties> person([this](GraphSeriesProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "txtName"), QStringLiteral("North"));
        MakeGraph(6, 2);
        ClickIn(dialog, "btnOK");
    });
    Open({PartCode::Series, 2, AnyIndex});
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(Model().DataGrid.ColumnLabel(2), "North");
    EXPECT_EQ(Model().RowCount(), 6);
    viewer->Undo();
    EXPECT_EQ(Model().DataGrid.ColumnLabel(2), "column 2");
    EXPECT_EQ(Model().RowCount(), 6);
}

TEST_F(EditingWithAHostTest, TheGraphDialogWritesIntoTheNewTable) {
    Person<GraphTypes> person([this](GraphTypes& dialog) {
        MakeGraph(2, 1);
        ClickIn(dialog, "CShowLegend");
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*viewer, PlaceOfPlot(viewer->ChartImage()));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(desktop.messages.isEmpty());
    EXPECT_EQ(Model().RowCount(), 2);
    EXPECT_EQ(The<QComboBox>(*viewer, "cbType").count(), 5);
}

TEST_F(EditingWithAHostTest, AViewerMayBeKilledWhileADialogOfItsIsOpen) {
    for (const Part part : {Part{PartCode::Title}, Part{PartCode::Series, 1, AnyIndex},
                            Part{PartCode::AxisLabel, 0, AnyIndex}}) {
        if (viewer.isNull()) MakeGraph(4, 3);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.data()));
        bool asked = false;
        Person<QDialog> person([&](QDialog&) {
            asked = true;
            QMChartArray().QmKillGraph(QStringLiteral("sales"));
        });
        Open(part);
        EXPECT_TRUE(asked);
        EXPECT_TRUE(desktop.messages.isEmpty());
        EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
    }
}

TEST_F(EditingWithAHostTest, AViewerMayBeKilledWhileTheDialogOfTheMenuIsOpen) {
    Person<GraphTypes> person([](GraphTypes&) { QMChartArray().QmKillGraph(QStringLiteral("sales")); });
    OpenMenu(*viewer, PlaceOfPlot(viewer->ChartImage()));
    ChooseEntry(*viewer, "optChart");
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
}

TEST_F(EditingWithAHostTest, WhatTheHostMadeAnewIsNotTakenBack) {
    ClickButton(*viewer, BarButton::Flip);
    ClickButton(*viewer, BarButton::Stack);
    MakeGraph(6, 2);
    const Chart made = Model();
    viewer->Undo();
    viewer->Redo();
    EXPECT_EQ(Model(), made);
}

TEST_F(EditingWithAHostTest, ATableThatCouldNotBeTakenWholeIsNotTakenBackEither) {
    ClickButton(*viewer, BarButton::Stack);
    EXPECT_THROW(QMChartArray().QmMakeGraph(QStringLiteral("sales"), 6, 2, Numbers(3, 2),
                                            Names(QStringLiteral("row"), 6),
                                            Names(QStringLiteral("column"), 2), {}, {}, {}, {}),
                 RuntimeError);
    const Chart left = Model();
    viewer->Undo();
    EXPECT_EQ(Model(), left);
}
