#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace QmChart6 {

inline constexpr int MonthsOfYear = 12;

/// A category's label read as a date: "2016-08", "2016-08-21", "Aug 2016", "Aug 21, 2016", "21 Aug 2016",
/// "21 de agosto de 2016", "08/21/2016", "21.08.2016", "Q3 2016", each with a time perhaps ("2016-08-21
/// 14:00"). Names of months are English, Portuguese, Spanish or Italian, whatever the locale.
struct DateLabel {
    /// What a label tells; those of one axis tell the same. DayOrMonth: a day, of which 08/09/2016 does not
    /// say which number is the month's.
    enum class Form { Quarter, Month, Day, DayOrMonth };

    Form form = Form::Month;
    int year = 0;
    int month = 1;
    int day = 1;
    bool hasTime = false;
    int minute = 0; // of the day

    // Where in the text the day stands, if it has one; of DayOrMonth, where the month does; and where the
    // time begins.
    qsizetype dayBegin = 0;
    qsizetype dayEnd = 0;
    qsizetype monthBegin = 0;
    qsizetype monthEnd = 0;
    qsizetype timeBegin = 0;

    [[nodiscard]] bool HasDay() const { return dayEnd > dayBegin; }
    /// Days from a fixed day on; a Monday is a multiple of 7.
    [[nodiscard]] std::int64_t DayNumber() const;
    /// Of DayOrMonth: takes for the month what was taken for the day.
    void ExchangeDayAndMonth();
};

/// The label as a date; nothing where it is none. Of DayOrMonth, the first number is taken for the day: the
/// month may then be greater than 12.
std::optional<DateLabel> ReadDateLabel(const QString& label);

/// The text of a label as far as its time, or as far as its day.
QString WithoutTime(const QString& label, const DateLabel& date);
QString WithoutDay(const QString& label, const DateLabel& date);

} // namespace QmChart6
