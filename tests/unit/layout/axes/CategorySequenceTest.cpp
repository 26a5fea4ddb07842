#include "chartcontrol/layout/axes/CategorySequence.h"

#include <QDate>
#include <QLocale>
#include <QStringList>

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

CategorySequence SequenceOf(const QStringList& labels) {
    return {static_cast<int>(labels.size()), [labels](int category) { return labels[category]; }};
}

/// The labels of the finest step that keeps no more than `most`.
QString Thinned(const QStringList& labels, double most) {
    CategorySequence sequence = SequenceOf(labels);
    for (int step = 0;; ++step) {
        const auto kept = sequence.Kept(step, most);
        if (!kept) return QStringLiteral("nothing");
        if (kept->empty()) continue;
        QStringList texts;
        for (const KeptCategory& label : *kept) texts += label.text;
        return texts.join(QStringLiteral("; "));
    }
}

QStringList Days(const QDate& first, int count, const QString& format, const QLocale& locale = QLocale::c(),
                 int step = 1) {
    QStringList labels;
    for (int day = 0; day < count; ++day)
        labels += locale.toString(first.addDays(static_cast<qint64>(day) * step), format);
    return labels;
}

QStringList MonthsFrom(const QDate& first, int count, const QString& format,
                       const QLocale& locale = QLocale::c()) {
    QStringList labels;
    for (int month = 0; month < count; ++month) labels += locale.toString(first.addMonths(month), format);
    return labels;
}

bool AreNames(const QStringList& labels) {
    return SequenceOf(labels).IsNames();
}

TEST(CategorySequence, TellsNamesFromNumbersDatesAndNumberedOnes) {
    const auto S = [](const char* text) { return QString::fromUtf8(text).split(QLatin1Char('|')); };
    EXPECT_TRUE(AreNames(S("North|South|East")));
    EXPECT_TRUE(AreNames(S("January|February|March")));
    EXPECT_TRUE(AreNames(S("Route 66|Area 51|Catch 22")));
    EXPECT_TRUE(AreNames(S("2016|2017|total")));
    EXPECT_FALSE(AreNames(S("2001|2002|2003")));
    EXPECT_FALSE(AreNames(S("1|2|5|10")));
    EXPECT_FALSE(AreNames(S("0.5|1.0|1.5")));
    EXPECT_FALSE(AreNames(S("W1|W2|W3")));
    EXPECT_FALSE(AreNames(S("Q1 2016|Q2 2016|Q3 2016")));
    EXPECT_FALSE(AreNames(S("2016-03|2016-02|2016-01")));
}

TEST(CategorySequence, MonthsAreThinnedByQuartersHalvesAndYears) {
    const QStringList months = MonthsFrom({2014, 11, 1}, 30, QStringLiteral("yyyy-MM"));
    EXPECT_EQ(Thinned(months, 12),
              QStringLiteral("2015-01; 2015-04; 2015-07; 2015-10; 2016-01; 2016-04; 2016-07; 2016-10; "
                             "2017-01; 2017-04"));
    EXPECT_EQ(Thinned(months, 6), QStringLiteral("2015-01; 2015-07; 2016-01; 2016-07; 2017-01"));
    EXPECT_EQ(Thinned(months, 4), QStringLiteral("2015; 2016; 2017"));
}

TEST(CategorySequence, DaysAreThinnedByWeeksAndMonths) {
    const QStringList days = Days({2016, 8, 1}, 70, QStringLiteral("yyyy-MM-dd"));
    EXPECT_TRUE(Thinned(days, 12).startsWith(QStringLiteral("2016-08-01; 2016-08-08; 2016-08-15")));
    EXPECT_EQ(Thinned(days, 5), QStringLiteral("2016-08; 2016-09; 2016-10"));
}

TEST(CategorySequence, HoursAreThinnedByPartsOfTheDay) {
    QStringList hours;
    for (int hour = 0; hour < 48; ++hour)
        hours +=
            QStringLiteral("2016-08-%1 %2:00").arg(21 + hour / 24).arg(hour % 24, 2, 10, QLatin1Char('0'));
    EXPECT_EQ(Thinned(hours, 5),
              QStringLiteral("2016-08-21 00:00; 2016-08-21 12:00; 2016-08-22 00:00; 2016-08-22 12:00"));
    EXPECT_EQ(Thinned(hours, 2), QStringLiteral("2016-08-21; 2016-08-22"));
}

TEST(CategorySequence, ReadsDatesInFourLanguages) {
    const QDate first(2016, 1, 1);
    for (const QLocale& locale : {QLocale(QLocale::English), QLocale(QLocale::Portuguese),
                                  QLocale(QLocale::Spanish), QLocale(QLocale::Italian)})
        for (const char* format : {"MMM yyyy", "MMMM yyyy", "MMM/yyyy"}) {
            const QStringList months = MonthsFrom(first, 25, QLatin1StringView(format), locale);
            EXPECT_EQ(Thinned(months, 4), QStringLiteral("2016; 2017; 2018")) << months[1].toStdString();
        }
    const QStringList days =
        Days(first, 70, QStringLiteral("d 'de' MMMM 'de' yyyy"), QLocale(QLocale::Portuguese));
    EXPECT_EQ(Thinned(days, 4), QStringLiteral("janeiro de 2016; fevereiro de 2016; março de 2016"));
}

TEST(CategorySequence, ShortensADateToItsMonth) {
    const QDate first(2016, 1, 1);
    const auto shortened = [&](const char* format) {
        return Thinned(Days(first, 45, QLatin1StringView(format), QLocale(QLocale::English)), 3);
    };
    EXPECT_EQ(shortened("dd MMM yyyy"), QStringLiteral("Jan 2016; Feb 2016"));
    EXPECT_EQ(shortened("MMM d, yyyy"), QStringLiteral("Jan 2016; Feb 2016"));
    EXPECT_EQ(shortened("MMM dd yyyy"), QStringLiteral("Jan 2016; Feb 2016"));
    EXPECT_EQ(shortened("dd.MM.yyyy"), QStringLiteral("01.2016; 02.2016"));
    EXPECT_EQ(shortened("dd/MM/yyyy"), QStringLiteral("01/2016; 02/2016"));
    EXPECT_EQ(shortened("MM/dd/yyyy"), QStringLiteral("01/2016; 02/2016"));
}

TEST(CategorySequence, QuartersAreThinnedByYears) {
    QStringList quarters;
    for (int quarter = 0; quarter < 12; ++quarter)
        quarters += QStringLiteral("Q%1 %2").arg(quarter % 4 + 1).arg(2014 + quarter / 4);
    EXPECT_EQ(Thinned(quarters, 6), QStringLiteral("Q1 2014; Q3 2014; Q1 2015; Q3 2015; Q1 2016; Q3 2016"));
    EXPECT_EQ(Thinned(quarters, 3), QStringLiteral("2014; 2015; 2016"));
}

TEST(CategorySequence, NumbersAreThinnedAtMultiples) {
    QStringList years;
    for (int year = 1987; year <= 2031; ++year) years += QString::number(year);
    EXPECT_EQ(Thinned(years, 10), QStringLiteral("1990; 1995; 2000; 2005; 2010; 2015; 2020; 2025; 2030"));
    EXPECT_EQ(Thinned(years, 5), QStringLiteral("1990; 2000; 2010; 2020; 2030"));
    EXPECT_EQ(Thinned({QStringLiteral("-2"), QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("1"),
                       QStringLiteral("2")},
                      3),
              QStringLiteral("-2; 0; 2"));
}

TEST(CategorySequence, OthersAreThinnedFromTheFirst) {
    QStringList weeks;
    for (int week = 1; week <= 26; ++week) weeks += QStringLiteral("W%1").arg(week);
    EXPECT_EQ(Thinned(weeks, 6), QStringLiteral("W1; W6; W11; W16; W21; W26"));
    EXPECT_EQ(Thinned(weeks, 3), QStringLiteral("W1; W11; W21"));
}

TEST(DateLabel, CountsDays) {
    const QDate monday(2016, 8, 22);
    for (int day = -40000; day < 4000; day += 113) {
        const QDate date = monday.addDays(day);
        DateLabel label;
        label.year = date.year();
        label.month = date.month();
        label.day = date.day();
        EXPECT_EQ(label.DayNumber() % 7, date.dayOfWeek() - 1);
        DateLabel reference;
        reference.year = 2016;
        reference.month = 8;
        reference.day = 22;
        EXPECT_EQ(label.DayNumber() - reference.DayNumber(), day);
    }
}

TEST(DateLabel, ReadsNothingElse) {
    for (const char* text :
         {"", "2016", "May", "May I", "2016-13", "2016-00-01", "2016-08-32", "12-08-16", "2016 apples",
          "Room 1-2016-3-4", "31 Abc 2016", "99999-01", "10:30", "Q5 2016", "3.14", "-2016-08"})
        EXPECT_FALSE(ReadDateLabel(QString::fromLatin1(text)).has_value()) << text;
}

} // namespace
} // namespace QmChart6
