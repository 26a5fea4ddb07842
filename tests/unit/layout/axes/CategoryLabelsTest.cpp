#include "support/StubTextMeasurer.h"
#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/axes/CategoryLabels.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

CategoryLabelPlan PlanOf(const QStringList& names, double slot,
                         double room = std::numeric_limits<double>::infinity()) {
    const StubTextMeasurer measurer;
    static const Font font;
    CategorySequence categories(static_cast<int>(names.size()),
                                [&](int category) { return names[category]; });
    return PlanCategoryLabels({categories, slot, 100, room, room}, font, measurer);
}

CategoryLabelPlan Plan(int count, const QString& stem, double slot) {
    QStringList names;
    for (int category = 0; category < count; ++category)
        names += stem.contains(QLatin1Char('%')) ? stem.arg(category) : stem;
    return PlanOf(names, slot);
}

QString TextsOf(const CategoryLabelPlan& plan) {
    QStringList texts;
    for (const CategoryLabelPlan::Label& label : plan.labels)
        for (const TextBlock::Line& line : label.block.lines) texts += line.text;
    return texts.join(QLatin1Char(' '));
}

TEST(CategoryLabels, StayAsTheyAreWhereThereIsRoom) {
    const CategoryLabelPlan plan = Plan(12, QStringLiteral("Label %1"), 80);
    EXPECT_EQ(plan.way, CategoryLabelPlan::Way::Level);
    EXPECT_FALSE(plan.thinned);
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
    EXPECT_TRUE(plan.thinned);
    EXPECT_EQ(plan.labels.front().category, 0);
    EXPECT_GE(plan.labels.size(), 5U);
}

TEST(CategoryLabels, NumberedOnesAreThinnedByEvenSteps) {
    EXPECT_EQ(TextsOf(Plan(26, QStringLiteral("W%1"), 9)), QStringLiteral("W0 W5 W10 W15 W20 W25"));
    EXPECT_EQ(Plan(26, QStringLiteral("Day %1"), 12).way, CategoryLabelPlan::Way::Level);
}

TEST(CategoryLabels, WholeNumbersStayAtMultiples) {
    QStringList years;
    for (int year = 2001; year <= 2017; ++year) years += QString::number(year);
    EXPECT_EQ(TextsOf(PlanOf(years, 16)), QStringLiteral("2002 2004 2006 2008 2010 2012 2014 2016"));
    EXPECT_EQ(TextsOf(PlanOf(years, 6)), QStringLiteral("2005 2010 2015"));
}

TEST(CategoryLabels, WhereNoStepFitsTheEndsAreKept) {
    EXPECT_EQ(TextsOf(Plan(5000, QStringLiteral("Row %1"), 0.02)), QStringLiteral("Row 0 Row 4999"));
    EXPECT_EQ(TextsOf(Plan(5000, QStringLiteral("Row %1"), 0.008)), QStringLiteral("Row 0"));
}

TEST(CategoryLabels, KeepTheirOwnLineBreaks) {
    const CategoryLabelPlan plan = PlanOf({QStringLiteral("North\nand South"), QStringLiteral("East")}, 90);
    EXPECT_EQ(plan.labels[0].block.lines.size(), 2U);
    EXPECT_EQ(plan.labels[0].block.lines[1].text, QStringLiteral("and South"));
}

TEST(CategoryLabels, TurnedOnesStayWithinTheRoom) {
    const QStringList names{QStringLiteral("A remarkably long name"), QStringLiteral("Short"),
                            QStringLiteral("Another long name of them"), QStringLiteral("The end")};
    for (const double room : {5.0, 10.0, 20.0, 40.0, 60.0, 90.0}) {
        const CategoryLabelPlan plan = PlanOf(names, 25, room);
        for (const CategoryLabelPlan::Label& label : plan.labels) {
            if (label.block.IsEmpty()) continue;
            EXPECT_LE(plan.ReachLeft(label), room + label.category * 25 + 1e-9) << room;
        }
    }
}

TEST(CategoryLabels, ElidedOnesKeepTheirEnds) {
    const StubTextMeasurer measurer;
    const TextBlock block = ElidedLine(QStringLiteral("A long category name 17"), {}, 60, measurer);
    EXPECT_TRUE(block.lines[0].text.startsWith(QLatin1Char('A')));
    EXPECT_TRUE(block.lines[0].text.endsWith(QStringLiteral("17")));
    EXPECT_LE(block.lines[0].width, 60);
}

TEST(CategoryLabels, ElidedOnesThatWouldBeAlikeLoseWhatTheyShare) {
    QStringList names;
    for (const char* word : {"Red", "Green", "Blue"})
        names += QStringLiteral("Administration and management of %1 products of every kind")
                     .arg(QString::fromLatin1(word));
    EXPECT_EQ(TextsOf(PlanOf(names, 20)), QStringLiteral("…Red… …Green… …Blue…"));
}

TEST(CategoryLabels, WithoutTextTakeNoRoom) {
    EXPECT_EQ(Plan(5, QString(), 50).Depth(), 0);
}

} // namespace
} // namespace QmChart6
