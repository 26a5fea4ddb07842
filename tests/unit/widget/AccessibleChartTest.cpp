#include "PointingTest.h"

#include "chartcontrol/widget/AccessibleChart.h"

#include <QAccessible>

namespace QmChart6 {
namespace {

class AccessibleChartTest : public PointingTest {
protected:
    /// Before any chart is made: what is known of one that is shown already stays as it is.
    static void SetUpTestSuite() { InstallAccessibleCharts(); }
    QAccessibleInterface* Interface() { return QAccessible::queryAccessibleInterface(&chart); }
};

TEST_F(AccessibleChartTest, TheChartTellsItsTitleAndWhatItShows) {
    QAccessibleInterface* it = Interface();
    ASSERT_NE(it, nullptr);
    EXPECT_EQ(it->role(), QAccessible::Chart);
    EXPECT_EQ(it->text(QAccessible::Name), QStringLiteral("Sales by Month and Region"));
    chart.Model() = Samples::ChartOf(3, 2, [](int row, int column) { return 1.5 * row * column; });
    EXPECT_EQ(it->text(QAccessible::Description),
              QStringLiteral("Bar chart with 2 series and 3 categories, values from 1.5 to 9."));
    EXPECT_EQ(it->text(QAccessible::Name), QStringLiteral("Chart"));
}

TEST_F(AccessibleChartTest, AChartWithoutValuesSaysSo) {
    chart.Model() = Samples::ChartOf(1, 1, [](int, int) { return Samples::Missing(); });
    EXPECT_EQ(Interface()->text(QAccessible::Description),
              QStringLiteral("Bar chart with 1 series and 1 category, without values."));
}

TEST_F(AccessibleChartTest, ItsChildrenAreTheSeriesAndTheirsThePoints) {
    QAccessibleInterface* it = Interface();
    ASSERT_EQ(it->childCount(), 4);
    QAccessibleInterface* south = it->child(1);
    ASSERT_NE(south, nullptr);
    EXPECT_EQ(south->text(QAccessible::Name), QStringLiteral("South"));
    EXPECT_EQ(south->role(), QAccessible::List);
    EXPECT_EQ(south->parent(), it);
    EXPECT_EQ(it->indexOfChild(south), 1);
    ASSERT_EQ(south->childCount(), 12);
    chart.Model().DataGrid.SetValue(3, 2, 55.5);
    QAccessibleInterface* march = south->child(2);
    ASSERT_NE(march, nullptr);
    EXPECT_EQ(march->text(QAccessible::Name), QStringLiteral("March: 55.5"));
    EXPECT_EQ(march->role(), QAccessible::ListItem);
    EXPECT_EQ(march->parent(), south);
    EXPECT_EQ(south->indexOfChild(march), 2);
    EXPECT_EQ(march->childCount(), 0);
    EXPECT_EQ(it->child(4), nullptr);
    EXPECT_EQ(south->child(12), nullptr);
    EXPECT_EQ(south->child(-1), nullptr);
}

TEST_F(AccessibleChartTest, APointIsWhereItIsDrawn) {
    QAccessibleInterface* point = Interface()->child(1)->child(4);
    const QPoint center = chart.mapFromGlobal(point->rect().center());
    EXPECT_EQ(PartAtPixels(center), (ChartPart{5, 2, 5}));
    EXPECT_EQ(Interface()->childAt(point->rect().center().x(), point->rect().center().y()), point);
    EXPECT_TRUE(Interface()->child(1)->rect().contains(point->rect()));
}

TEST_F(AccessibleChartTest, TheSelectedPointSaysSo) {
    chart.SelectPart(5, 2, 3, 0, 0);
    QAccessibleInterface* south = Interface()->child(1);
    EXPECT_TRUE(south->child(2)->state().selected);
    EXPECT_FALSE(south->child(3)->state().selected);
    EXPECT_FALSE(south->state().selected);
}

TEST_F(AccessibleChartTest, AMissingValueIsSaid) {
    chart.Model().DataGrid.SetValue(1, 1, Samples::Missing());
    EXPECT_EQ(Interface()->child(0)->child(0)->text(QAccessible::Name), QStringLiteral("January: no value"));
}

TEST_F(AccessibleChartTest, ASeriesThatWentIsNoLongerValid) {
    QAccessibleInterface* last = Interface()->child(3);
    ASSERT_TRUE(last->isValid());
    chart.Model().SetGridSize(2, 2);
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), QString());
    EXPECT_EQ(last->childCount(), 0);
}

TEST_F(AccessibleChartTest, ALongSeriesIsWalkedWithoutKeepingItAll) {
    chart.Model() = Samples::ChartOf(5000, 1, [](int row, int) { return row; });
    chart.Refresh();
    QAccessibleInterface* series = Interface()->child(0);
    ASSERT_EQ(series->childCount(), 5000);
    const QAccessible::Id first = QAccessible::uniqueId(series->child(0));
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(series->child(i)->text(QAccessible::Name), QStringLiteral("Row %1: %1").arg(i + 1));
    EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr) << "the first was let go";
    EXPECT_EQ(series->child(0)->text(QAccessible::Name), QStringLiteral("Row 1: 1"));
}

} // namespace
} // namespace QmChart6
