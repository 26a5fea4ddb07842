#include "chartcontrol/layout/text/AlikeNames.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

const QString Ellipsis = QStringLiteral("…");

TEST(AlikeNames, WordsThatAllBeginAndEndWithAreLeftOut) {
    EXPECT_EQ(WithoutCommonEnds({QStringLiteral("Department of State Affairs"),
                                 QStringLiteral("Department of Home and Sea Affairs")}),
              QStringList({Ellipsis + QStringLiteral("State") + Ellipsis,
                           Ellipsis + QStringLiteral("Home and Sea") + Ellipsis}));
}

TEST(AlikeNames, OnlyWholeWordsCount) {
    const QStringList names{QStringLiteral("Northern"), QStringLiteral("Northwest")};
    EXPECT_EQ(WithoutCommonEnds(names), names);
}

TEST(AlikeNames, NoneIsLostWhole) {
    const QStringList names{QStringLiteral("Sales"), QStringLiteral("Sales abroad")};
    EXPECT_EQ(WithoutCommonEnds(names), names);
    EXPECT_EQ(WithoutCommonEnds({QStringLiteral("alone")}), QStringList(QStringLiteral("alone")));
}

} // namespace
} // namespace QmChart6
