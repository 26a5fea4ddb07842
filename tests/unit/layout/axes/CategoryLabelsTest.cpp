#include "support/StubTextMeasurer.h"
#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/axes/CategoryLabels.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

CategoryLabelPlan Plan(int count, const QString& stem, double slot) {
    const StubTextMeasurer measurer;
    static const Font font;
    return PlanCategoryLabels(
        {count, [&](int category) { return stem.contains(QLatin1Char('%')) ? stem.arg(category) : stem; },
         slot, 100},
        font, measurer);
}

TEST(CategoryLabels, StayAsTheyAreWhereThereIsRoom) {
    const CategoryLabelPlan plan = Plan(12, QStringLiteral("Label %1"), 80);
    EXPECT_EQ(plan.way, CategoryLabelPlan::Way::Level);
    EXPECT_EQ(plan.stride, 1);
    EXPECT_EQ(plan.labels[0].block.lines.size(), 1U);
}

TEST(CategoryLabels, WrapBeforeTheyTurn) {
    const CategoryLabelPlan plan = Plan(12, QStringLiteral("Label number %1"), 50);
    EXPECT_EQ(plan.way, CategoryLabelPlan::Way::Level);
    EXPECT_EQ(plan.labels[0].block.lines.size(), 2U);
}

TEST(CategoryLabels, TurnWhereWordsAreLongerThanTheirSlot) {
    EXPECT_EQ(Plan(12, QStringLiteral("Alongwordindeed%1"), 30).way, CategoryLabelPlan::Way::Turned);
    EXPECT_EQ(Plan(12, QStringLiteral("Alongwordindeed%1"), 11).way, CategoryLabelPlan::Way::Upright);
}

TEST(CategoryLabels, ThinOutAtLastAndKeepTheFirst) {
    const CategoryLabelPlan plan = Plan(700, QStringLiteral("Label %1"), 1);
    EXPECT_GT(plan.stride, 1);
    EXPECT_EQ(plan.labels.front().category, 0);
    EXPECT_GE(plan.labels.size(), 5U);
}

TEST(CategoryLabels, ThinnedOnesKeepTheLastWhereAStrideMeetsIt) {
    const CategoryLabelPlan plan = Plan(40, QStringLiteral("A long category name %1"), 6);
    EXPECT_EQ(plan.labels.back().category, 39);
}

TEST(CategoryLabels, ElidedOnesKeepTheirEnds) {
    const StubTextMeasurer measurer;
    const TextBlock block = ElidedLine(QStringLiteral("A long category name 17"), {}, 60, measurer);
    EXPECT_TRUE(block.lines[0].text.startsWith(QLatin1Char('A')));
    EXPECT_TRUE(block.lines[0].text.endsWith(QStringLiteral("17")));
    EXPECT_LE(block.lines[0].width, 60);
}

TEST(CategoryLabels, WithoutTextTakeNoRoom) {
    EXPECT_EQ(Plan(5, QString(), 50).Depth(), 0);
}

} // namespace
} // namespace QmChart6
