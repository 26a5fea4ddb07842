#include "base/ProcessState.h"

#include <gtest/gtest.h>

using namespace QmChart6;

TEST(ProcessStateTest, BeginsWithNothingAndIsForgottenButForTheDesktop) {
    Process().configurationFolder = QStringLiteral("/looks/");
    Process().languageCode = 2;
    Process().valueLabelFormat = QStringLiteral("0.00");
    Process().lookOverrides[QStringLiteral("SALES")] = nullptr;
    Process().sizeOfNewCharts = QSize(1, 1);
    Process().viewers.resize(3);
    auto* desktop = reinterpret_cast<Desktop*>(&Process()); // any address but null
    Process().desktop = desktop;
    ResetProcess();
    EXPECT_EQ(Process().configurationFolder, "");
    EXPECT_EQ(Process().languageCode, 0);
    EXPECT_EQ(Process().valueLabelFormat, "0");
    EXPECT_TRUE(Process().lookOverrides.empty());
    EXPECT_FALSE(Process().sizeOfNewCharts);
    EXPECT_TRUE(Process().viewers.empty());
    EXPECT_EQ(Process().desktop, desktop);
    Process().desktop = nullptr;
}
