#include "base/NumberText.h"
#include "support/Raises.h"
#include "support/ScopedLocale.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace QmChart6;

namespace {

QString Text(double value) {
    return TextOfDouble(value);
}

} // namespace

TEST(TextOfDouble, KeepsFifteenSignificantDigits) {
    EXPECT_EQ(Text(0.1), "0.1");
    EXPECT_EQ(Text(0.1 + 0.2), "0.3");
    EXPECT_EQ(Text(-0.5), "-0.5");
    EXPECT_EQ(Text(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(Text(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(Text(123456.789), "123456.789");
    EXPECT_EQ(Text(1200), "1200");
    EXPECT_EQ(Text(0.99999999999999994), "1");
}

TEST(TextOfDouble, WritesAnExponentWherePlainNeedsMoreThanFifteenPlaces) {
    EXPECT_EQ(Text(123456789012345.0), "123456789012345");
    EXPECT_EQ(Text(999999999999999.0), "999999999999999");
    EXPECT_EQ(Text(1e15), "1E+15");
    EXPECT_EQ(Text(1.5e300), "1.5E+300");
    EXPECT_EQ(Text(1.5e-5), "0.000015");
    EXPECT_EQ(Text(1e-15), "0.000000000000001");
    EXPECT_EQ(Text(1.5e-15), "1.5E-15");
    EXPECT_EQ(Text(1e-16), "1E-16");
    EXPECT_EQ(Text(-1e-300), "-1E-300");
    EXPECT_EQ(Text(1.0 / 30), "3.33333333333333E-02");
}

TEST(TextOfDouble, WritesZeroWithoutASign) {
    EXPECT_EQ(Text(0.0), "0");
    EXPECT_EQ(Text(-0.0), "0");
}

TEST(TextOfDouble, WritesTheEndsOfTheRange) {
    EXPECT_EQ(Text(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(Text(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
    EXPECT_EQ(Text(std::numeric_limits<double>::infinity()), "Infinity");
    EXPECT_EQ(Text(std::numeric_limits<double>::quiet_NaN()), "NaN");
}

TEST(TextOfSingle, KeepsSevenSignificantDigits) {
    EXPECT_EQ(TextOfSingle(0.1F), "0.1");
    EXPECT_EQ(TextOfSingle(1.0F / 3), "0.3333333");
    EXPECT_EQ(TextOfSingle(1234567.0F), "1234567");
    EXPECT_EQ(TextOfSingle(1e7F), "1E+07");
    EXPECT_EQ(TextOfSingle(16777216.0F), "1.677722E+07");
    EXPECT_EQ(TextOfSingle(1.5e-7F), "1.5E-07");
    EXPECT_EQ(TextOfSingle(0.5F), "0.5");
}

TEST(TextOfDouble, UsesTheLocalesSeparatorAndNoGrouping) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(Text(1234567.5), "1234567,5");
    EXPECT_EQ(Text(1.5e300), "1,5E+300");
    EXPECT_EQ(DecimalSeparator(), QChar(u','));
}

TEST(NumberOfText, TakesBlanksSignDecimalsAndExponent) {
    EXPECT_EQ(NumberOfText(u"12"), 12);
    EXPECT_EQ(NumberOfText(u"  -12.5 "), -12.5);
    EXPECT_EQ(NumberOfText(u"+.5"), 0.5);
    EXPECT_EQ(NumberOfText(u"5."), 5);
    EXPECT_EQ(NumberOfText(u"1.5E-05"), 1.5e-5);
    EXPECT_EQ(NumberOfText(u"2e3"), 2000);
    EXPECT_EQ(NumberOfText(u"1E+15"), 1e15);
    EXPECT_FALSE(std::signbit(NumberOfText(u"-0")));
}

TEST(NumberOfText, RaisesTypeMismatchForWhatIsNoNumber) {
    for (const char16_t* text : {u"", u" ", u"abc", u"1,5", u"1.5.5", u"1 5", u"--1", u"0x10", u"inf", u"nan",
                                 u"1e", u"e5", u".", u"-", u"1.5-", u"1_000", u"1,000"})
        EXPECT_RAISES(13, NumberOfText(text));
}

TEST(NumberOfText, RaisesOverflowForANumberTooLarge) {
    EXPECT_RAISES(6, NumberOfText(u"1E+309"));
    EXPECT_RAISES(6, NumberOfText(u"-2e308"));
    EXPECT_RAISES(6, NumberOfText(QString(400, u'9')));
    EXPECT_RAISES(6, NumberOfText(u"1e99999999999999999999999"));
}

TEST(NumberOfText, GivesZeroForANumberTooSmall) {
    EXPECT_EQ(NumberOfText(u"1E-400"), 0);
    EXPECT_EQ(NumberOfText(QStringLiteral("0.") + QString(400, u'0') + u'1'), 0);
    EXPECT_EQ(NumberOfText(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1E+5")), 0);
    EXPECT_EQ(NumberOfText(u"1e-99999999999999999999999"), 0);
}

TEST(NumberOfText, TakesTheLocalesSeparatorOnly) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_EQ(NumberOfText(u"1,5"), 1.5);
    EXPECT_RAISES(13, NumberOfText(u"1.5"));
}

TEST(RoundedAsText, IsWhatTheTextHolds) {
    std::mt19937_64 random(20261121);
    const auto expectSame = [](double value) {
        EXPECT_EQ(RoundedAsText(value), NumberOfText(TextOfDouble(value))) << value;
        const auto single = static_cast<float>(value);
        if (std::isfinite(single)) {
            EXPECT_EQ(RoundedAsText(single), NumberOfText(TextOfSingle(single))) << single;
        }
    };
    for (int round = 0; round < 20000; ++round) {
        const std::uint64_t bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        if (std::isfinite(any) && std::fabs(any) < 1e307) expectSame(any);
        const double unit = static_cast<double>(random() >> 11) / 9007199254740992.0;
        expectSame(unit);
        expectSame((unit - 0.5) * std::pow(10.0, static_cast<double>(random() % 24) - 8));
        expectSame(std::floor(unit * 1e7) / 100);
    }
}

TEST(RoundedAsText, HoldsAtTheEdgesOfItsShortWay) {
    for (const double value :
         {0.1, 0.3, 1e-7, 9.9999999999999995e-8, 1e15, 999999999999999.5, 999999999999999.9,
          99999999999999.95, 0.99999999999999994, 9.9999999999999982, 1e22, 1e23, 0.000123456789012345678,
          4503599627370497.5, 5e-324, 1.7976931348623157e308}) {
        if (value < 1e308) {
            EXPECT_EQ(RoundedAsText(value), NumberOfText(TextOfDouble(value))) << value;
        }
        EXPECT_EQ(RoundedAsText(-value), -RoundedAsText(value)) << value;
    }
    EXPECT_FALSE(std::signbit(RoundedAsText(-0.0)));
    EXPECT_TRUE(std::isnan(RoundedAsText(std::nan(""))));
    EXPECT_TRUE(std::isinf(RoundedAsText(std::numeric_limits<double>::infinity())));
    EXPECT_EQ(RoundedAsText(0.1F), 0.1);
}

TEST(TextHoldsPoint, AgreesWithTheText) {
    std::mt19937_64 random(4711);
    for (int round = 0; round < 20000; ++round) {
        const double unit = static_cast<double>(random() >> 11) / 9007199254740992.0;
        for (const double value : {unit, unit * 1e20, std::floor(unit * 1e6), std::floor(unit * 1e3) * 1e14,
                                   std::floor(unit * 9) * 1e-16, 1 - unit * 1e-15, -unit}) {
            EXPECT_EQ(TextHoldsPoint(value), TextOfDouble(value).contains(u'.')) << value;
            const auto single = static_cast<float>(value);
            EXPECT_EQ(TextHoldsPoint(single), TextOfSingle(single).contains(u'.')) << single;
        }
    }
    EXPECT_FALSE(TextHoldsPoint(std::nan("")));
    EXPECT_FALSE(TextHoldsPoint(std::numeric_limits<double>::infinity()));
}

TEST(TextHoldsPoint, IsNeverTrueUnderACommaLocale) {
    const ScopedLocale scope(CommaLocale());
    EXPECT_FALSE(TextHoldsPoint(1.5));
    EXPECT_FALSE(TextHoldsPoint(1.5F));
    EXPECT_FALSE(TextHoldsPoint(1.5e300));
}
