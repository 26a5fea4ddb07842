#include "chartcontrol/layout/axes/TickTexts.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

class InLocale {
public:
    explicit InLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~InLocale() { QLocale::setDefault(before_); }

private:
    QLocale before_;
};

QString Joined(const TickTexts& texts) {
    return texts.labels.join(QLatin1Char(' ')) + QLatin1Char('|') + texts.unit;
}

TEST(TickTexts, HaveTheDigitsThatTellThemApart) {
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 0.25, 0.5})), QStringLiteral("0.00 0.25 0.50|"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 5000, 10000})), QStringLiteral("0 5,000 10,000|"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 1.0 / 3, 2.0 / 3, 1})),
              QStringLiteral("0.0000 0.3333 0.6667 1.0000|"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0.5, 1.5, 2.5})), QStringLiteral("0.5 1.5 2.5|"));
}

TEST(TickTexts, OfLargeValuesAreInUnits) {
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 5e6, 1e7})), QStringLiteral("0 5 10|million"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 5e8, 1e9, 1.5e9})), QStringLiteral("0.0 0.5 1.0 1.5|billion"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 4e15, 8e15})), QStringLiteral("0 4 8|×10¹⁵"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 2e-9, 4e-9})), QStringLiteral("0 2 4|×10⁻⁹"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({-1e308, 0, 1e308})), QStringLiteral("-100 0 100|×10³⁰⁶"));
}

TEST(TickTexts, OfLargeValuesCloseTogetherArePlain) {
    EXPECT_EQ(Joined(TextsOfEvenTicks({1500000000, 1500000005, 1500000010})),
              QStringLiteral("1,500,000,000 1,500,000,005 1,500,000,010|"));
}

TEST(TickTexts, TellUnitsInTheLanguageOfTheLocale) {
    const std::vector<double> ticks{0, 1.5e9, 3e9};
    const auto unit = [&](const char* name) {
        const InLocale locale{QLocale(QLatin1StringView(name))};
        return TextsOfEvenTicks(ticks).unit;
    };
    EXPECT_EQ(unit("pt_BR"), QStringLiteral("bilhões"));
    EXPECT_EQ(unit("pt_PT"), QStringLiteral("mil milhões"));
    EXPECT_EQ(unit("es_ES"), QStringLiteral("miles de millones"));
    EXPECT_EQ(unit("it_IT"), QStringLiteral("miliardi"));
    EXPECT_EQ(unit("fi_FI"), QStringLiteral("×10⁹"));
}

TEST(TickTexts, FollowADecimalComma) {
    const InLocale locale{QLocale(QLocale::Portuguese, QLocale::Brazil)};
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 0.5, 1})), QStringLiteral("0,0 0,5 1,0|"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({0, 5000, 10000})), QStringLiteral("0 5.000 10.000|"));
    EXPECT_EQ(Joined(TextsOfEvenTicks({10000, 10000.5, 10001})),
              QStringLiteral("10.000,0 10.000,5 10.001,0|"));
}

TEST(TickTexts, OfLogarithmicTicksArePlainOrPowers) {
    EXPECT_EQ(Joined(TextsOfLogarithmicTicks({0.01, 1, 100, 10000})), QStringLiteral("0.01 1 100 10,000|"));
    EXPECT_EQ(Joined(TextsOfLogarithmicTicks({1, 1e4, 1e8})), QStringLiteral("1 10⁴ 10⁸|"));
    EXPECT_EQ(Joined(TextsOfLogarithmicTicks({1e7, 2e7, 5e7})), QStringLiteral("10⁷ 2×10⁷ 5×10⁷|"));
    EXPECT_EQ(Joined(TextsOfLogarithmicTicks({99.9, 99.95, 100})), QStringLiteral("99.90 99.95 100.00|"));
}

} // namespace
} // namespace QmChart6
