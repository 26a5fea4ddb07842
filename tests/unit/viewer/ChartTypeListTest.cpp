#include "viewer/ChartTypeList.h"

#include "chartcontrol/model/ChartKinds.h"
#include "text/LocalText.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

const QStringList SevenTexts{"Bar", "Line", "Area", "Step", "Combination", "Pie", "XY (Scatter)"};

/// The types at the places of a list.
QList<int> TypesOf(int columnCount, bool threeD) {
    QList<int> types;
    for (int index = 0; index < ChartTypeTexts(columnCount, threeD).size(); ++index)
        types.append(ChartTypeAtIndex(index, columnCount, threeD));
    return types;
}

} // namespace

TEST(ChartTypeList, SeveralColumnsHaveSevenTypesWhateverThreeDIs) {
    SetLanguageCode(0);
    EXPECT_EQ(ChartTypeTexts(2, false), SevenTexts);
    EXPECT_EQ(ChartTypeTexts(2, true), SevenTexts);
}

TEST(ChartTypeList, OneColumnHasPieWhileThreeDIsReleased) {
    SetLanguageCode(0);
    EXPECT_EQ(ChartTypeTexts(1, false), QStringList({"Bar", "Line", "Area", "Step", "Pie"}));
    EXPECT_EQ(ChartTypeTexts(1, true), QStringList({"Bar", "Line", "Area", "Step"}));
    EXPECT_EQ(ChartTypeTexts(0, false), QStringList({"Bar", "Line", "Area", "Step", "Pie"}));
}

TEST(ChartTypeList, TheTextsAreOfTheLanguageOfTheMoment) {
    SetLanguageCode(1);
    EXPECT_EQ(ChartTypeTexts(2, false).front(), LocalText(TextKey::Bar));
    EXPECT_NE(ChartTypeTexts(2, false), SevenTexts);
    SetLanguageCode(0);
}

TEST(ChartTypeList, EveryPlaceStandsForItsType) {
    EXPECT_EQ(TypesOf(3, false), QList<int>({1, 3, 5, 7, 9, 14, 16}));
    EXPECT_EQ(TypesOf(3, true), QList<int>({0, 2, 4, 6, 8, 14, 16}));
    EXPECT_EQ(TypesOf(1, false), QList<int>({1, 3, 5, 7, 14}));
    EXPECT_EQ(TypesOf(1, true), QList<int>({0, 2, 4, 6}));
}

TEST(ChartTypeList, EveryTypeIsFoundAtItsPlace) {
    for (const int columns : {1, 3})
        for (const bool threeD : {false, true}) {
            const QList<int> types = TypesOf(columns, threeD);
            for (int index = 0; index < types.size(); ++index)
                EXPECT_EQ(IndexOfChartType(ToChartType(types.at(index)), columns), index)
                    << columns << (threeD ? " 3D" : " 2D");
        }
}
