#include "text/Remarks.h"

#include "text/Languages.h"
#include "text/LocalText.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace QmChart6;

namespace {

class RemarksTest : public testing::Test {
protected:
    void TearDown() override { SetLanguageCode(0); }
    static QString Told(std::int16_t language, const char* english) {
        SetLanguageCode(language);
        return LocalRemark(QString::fromLatin1(english));
    }
};

} // namespace

TEST_F(RemarksTest, AreSaidInEachLanguageWithTheirNumbers) {
    QSet<QString> said;
    for (std::int16_t language = 0; language < static_cast<std::int16_t>(Languages().size()); ++language) {
        const QString legend = Told(language, "the legend has no room for 3 of 17 series");
        EXPECT_TRUE(legend.contains(QStringLiteral("3")) && legend.contains(QStringLiteral("17")))
            << language;
        EXPECT_FALSE(legend.contains(u'%')) << language;
        said.insert(legend);
    }
    EXPECT_EQ(said.size(), Languages().size());
    EXPECT_EQ(Told(2, "2 negative values have no slice"),
              QStringLiteral("2 valores negativos no tienen sector"));
    EXPECT_EQ(Told(3, "there is no value to show"), QStringLiteral("non c'è alcun valore da mostrare"));
}

TEST_F(RemarksTest, StayAsTheyAreWhereNobodyTranslatedThem) {
    EXPECT_EQ(Told(2, "something else is odd"), "something else is odd");
    EXPECT_EQ(Told(99, "there is no value to show"), "there is no value to show");
    EXPECT_EQ(Told(1, "well, there is no value to show"), "well, there is no value to show");
}
