#include "dialogs/GraphTypes.h"

#include "DialogsTest.h"
#include "dialogs/ColourBox.h"
#include "support/SampleCharts.h"
#include "support/TestViewer.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

using namespace QmChart6;

namespace {

/// The graph dialog as a form: how wide its controls are, and where the focus goes.
class GraphTypesFormTest : public DialogsTest {
protected:
    GraphTypesFormTest() {
        viewer.Model() = Samples::ChartOf(4, 3, [](int row, int column) { return row + column; });
    }

    void Edit(const DealingDesktop::Deal& deal) {
        desktop.deals.push_back(deal);
        GraphTypes(nullptr).Execute(viewer);
        EXPECT_EQ(desktop.shown, 1);
    }
    static QTabWidget& Tabs(QDialog& form) { return The<QTabWidget>(form, "TabTypes"); }

    TestViewer viewer;
};

} // namespace

TEST_F(GraphTypesFormTest, WhatNeedsNoRoomTakesNone) {
    Edit([](QDialog& form) {
        form.resize(1100, 600);
        QApplication::processEvents();
        const auto& kinds = The<QListWidget>(form, "LChTypes");
        const int words = kinds.sizeHintForColumn(0);
        EXPECT_LE(kinds.width(), words + 60);
        EXPECT_GE(kinds.viewport()->width(), words);
        Tabs(form).setCurrentIndex(4);
        QApplication::processEvents();
        const auto& button = The<QPushButton>(form, "btnBackColor");
        EXPECT_EQ(button.width(), button.sizeHint().width());
        const auto& swatch = The<ColourBox>(form, "pbBackColor");
        EXPECT_EQ(swatch.size(), swatch.sizeHint());
    });
}

TEST_F(GraphTypesFormTest, AClickBesideTheKindsLeavesTheOneMarked) {
    Edit([](QDialog& form) {
        auto& kinds = The<QListWidget>(form, "LChTypes");
        kinds.setMinimumHeight(400);
        form.resize(form.width(), 700);
        QApplication::processEvents();
        ASSERT_EQ(kinds.selectedItems().size(), 1);
        const QListWidgetItem* marked = kinds.selectedItems().front();
        const QPoint beside(kinds.viewport()->width() / 2, kinds.viewport()->height() - 3);
        ASSERT_EQ(kinds.itemAt(beside), nullptr);
        QTest::mouseClick(kinds.viewport(), Qt::LeftButton, {}, beside);
        ASSERT_EQ(kinds.selectedItems().size(), 1);
        EXPECT_EQ(kinds.selectedItems().front(), marked);
    });
}

TEST_F(GraphTypesFormTest, TheFirstFocusIsOnThePageAtTheChosenDimension) {
    for (const ChartType type : {ChartType::Bar2D, ChartType::Bar3D}) {
        viewer.Model().SetChartType(type);
        desktop.shown = 0;
        Edit([type](QDialog& form) {
            const QWidget* focus = form.focusWidget();
            ASSERT_NE(focus, nullptr);
            EXPECT_EQ(focus->objectName(), type == ChartType::Bar2D ? "RB2d" : "RB3d");
        });
    }
}

TEST_F(GraphTypesFormTest, CtrlTabTurnsThePagesWhereverTheFocusIs) {
    Edit([](QDialog& form) {
        QTabWidget& tabs = Tabs(form);
        for (const char* name : {"LChTypes", "btnOK", "CShowLegend"}) {
            tabs.setCurrentIndex(0);
            The<QWidget>(form, name).setFocus();
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(tabs.currentIndex(), 1) << name;
            QTest::keyClick(form.focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_EQ(tabs.currentIndex(), 0) << name;
        }
        // After a tab's own letter too.
        const QString caption = tabs.tabText(3);
        const qsizetype at = caption.indexOf(u'&');
        ASSERT_GE(at, 0) << caption.toStdString();
        QTest::keyClick(form.focusWidget(), caption.at(at + 1).toLower().toLatin1(), Qt::AltModifier);
        EXPECT_EQ(tabs.currentIndex(), 3);
        ASSERT_NE(form.focusWidget(), nullptr);
        EXPECT_TRUE(form.focusWidget()->isVisible());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs.currentIndex(), 4);
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs.currentIndex(), 0);
    });
}
