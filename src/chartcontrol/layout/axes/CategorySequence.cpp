#include "chartcontrol/layout/axes/CategorySequence.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

/// "Week 12" is a number with a name before it; a longer text round a number is a name.
constexpr qsizetype LongestRoundNumber = 12;
/// Steps of numbers go as far as numbers do.
constexpr int NiceSteps = 30;

/// What dates are thinned by: the label is kept where one of these begins.
enum class DateUnit { Hours, Days, Weeks, Months, Years };
struct DateStep {
    DateUnit unit;
    int count;
};
constexpr std::array DateSteps{
    DateStep{DateUnit::Hours, 1},  DateStep{DateUnit::Hours, 2},  DateStep{DateUnit::Hours, 3},
    DateStep{DateUnit::Hours, 6},  DateStep{DateUnit::Hours, 12}, DateStep{DateUnit::Days, 1},
    DateStep{DateUnit::Weeks, 1},  DateStep{DateUnit::Months, 1}, DateStep{DateUnit::Months, 3},
    DateStep{DateUnit::Months, 6}, DateStep{DateUnit::Years, 1},  DateStep{DateUnit::Years, 2},
    DateStep{DateUnit::Years, 5},  DateStep{DateUnit::Years, 10}, DateStep{DateUnit::Years, 20},
    DateStep{DateUnit::Years, 50}, DateStep{DateUnit::Years, 100}};

constexpr int MinutesOfHour = 60;
constexpr int HoursOfDay = 24;
constexpr int DaysOfWeek = 7;

/// Which of the units, counted on, a date stands in.
std::int64_t UnitOf(const DateLabel& date, DateStep step) {
    switch (step.unit) {
    case DateUnit::Hours:
        return (date.DayNumber() * HoursOfDay + date.minute / MinutesOfHour) / step.count;
    case DateUnit::Days:
        return date.DayNumber();
    case DateUnit::Weeks:
        return date.DayNumber() / DaysOfWeek;
    case DateUnit::Months:
        return (std::int64_t{date.year} * MonthsOfYear + date.month - 1) / step.count;
    case DateUnit::Years:
        return date.year / step.count;
    }
    return 0;
}

/// Whether one of the units begins with the date itself.
bool Begins(const DateLabel& date, DateStep step) {
    switch (step.unit) {
    case DateUnit::Hours:
        return date.minute % (MinutesOfHour * step.count) == 0;
    case DateUnit::Days:
        return date.minute == 0;
    case DateUnit::Weeks:
        return date.minute == 0 && date.DayNumber() % DaysOfWeek == 0;
    case DateUnit::Months:
        return date.minute == 0 && date.day == 1 && (date.month - 1) % step.count == 0;
    case DateUnit::Years:
        return date.minute == 0 && date.day == 1 && date.month == 1 && date.year % step.count == 0;
    }
    return false;
}

/// As short as can be understood where all labels stand at such steps.
QString ShortText(const QString& label, const DateLabel& date, DateStep step) {
    switch (step.unit) {
    case DateUnit::Hours:
        return label;
    case DateUnit::Days:
    case DateUnit::Weeks:
        return WithoutTime(label, date);
    case DateUnit::Months:
        return date.HasDay() ? WithoutDay(label, date) : WithoutTime(label, date);
    case DateUnit::Years:
        return QString::number(date.year);
    }
    return label;
}

/// A text round a number: "Week 12" or "3rd".
struct Numbered {
    QStringView before;
    std::int64_t number = 0;
    QStringView behind;
};

std::optional<Numbered> ReadNumbered(QStringView label) {
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const auto first = std::find_if(label.begin(), label.end(), isDigit) - label.begin();
    const auto end = std::find_if_not(label.begin() + first, label.end(), isDigit) - label.begin();
    const bool fits = end > first && label.size() - (end - first) <= LongestRoundNumber;
    if (!fits) return std::nullopt;
    return Numbered{label.left(first), label.mid(first, end - first).toLongLong(), label.mid(end)};
}

} // namespace

std::int64_t NiceStride(int place) {
    static constexpr std::array<std::int64_t, 3> steps{1, 2, 5};
    std::int64_t scale = 1;
    for (int i = 0; i < place / 3; ++i) scale *= 10;
    return steps[static_cast<std::size_t>(place % 3)] * scale;
}

bool CategorySequence::IsNames() {
    if (kind_ == Kind::Unknown) kind_ = FindOut();
    return kind_ == Kind::Names;
}

CategorySequence::Kind CategorySequence::FindOut() {
    if (AreNumbers()) return Kind::Numbers;
    if (ReadDates()) return Ascend() ? Kind::Dates : Kind::Others;
    return AreNumbered() ? Kind::Others : Kind::Names;
}

/// Whole numbers, each as far from the one before as the first two.
bool CategorySequence::AreNumbers() {
    std::int64_t before = 0;
    for (int category = 0; category < count_; ++category) {
        bool isNumber = false;
        const std::int64_t number = Text(category).toInt(&isNumber);
        if (!isNumber) return false;
        if (category == 0) firstNumber_ = number;
        if (category == 1) numberStep_ = number - before;
        if (category > 1 && number - before != numberStep_) return false;
        before = number;
    }
    return numberStep_ != 0;
}

bool CategorySequence::ReadDates() {
    for (int category = 0; category < count_; ++category) {
        const std::optional<DateLabel> date = ReadDateLabel(Text(category));
        const bool alike = date && (dates_.empty() || (date->form == dates_.front().form &&
                                                       date->hasTime == dates_.front().hasTime));
        if (!alike) return false;
        dates_.push_back(*date);
    }
    return true;
}

/// Whether the dates ascend, with days and months exchanged perhaps. Where they do either way, the country of
/// the locale decides.
bool CategorySequence::Ascend() {
    const auto ascend = [this] {
        const auto isValid = [](const DateLabel& date) { return date.month <= MonthsOfYear; };
        const auto minutes = [](const DateLabel& date) {
            return date.DayNumber() * HoursOfDay * MinutesOfHour + date.minute;
        };
        return std::ranges::all_of(dates_, isValid) && std::ranges::is_sorted(dates_, {}, minutes) &&
               minutes(dates_.front()) < minutes(dates_.back());
    };
    if (dates_.front().form != DateLabel::Form::DayOrMonth) return ascend();
    const bool monthFirst = QLocale().dateFormat(QLocale::ShortFormat).startsWith(QLatin1Char('M'));
    const auto exchange = [this] { std::ranges::for_each(dates_, &DateLabel::ExchangeDayAndMonth); };
    if (monthFirst) exchange();
    if (ascend()) return true;
    exchange();
    return ascend();
}

/// Numbers, or numbers that ascend evenly in short texts that are else the same.
bool CategorySequence::AreNumbered() const {
    bool areNumbers = true;
    bool ascend = true;
    std::int64_t before = 0;
    std::int64_t step = 0;
    const QString first = Text(0);
    const std::optional<Numbered> alike = ReadNumbered(first);
    for (int category = 0; category < count_ && (areNumbers || ascend); ++category) {
        const QString label = Text(category);
        bool isNumber = false;
        static_cast<void>(label.toDouble(&isNumber));
        areNumbers = areNumbers && isNumber;
        const std::optional<Numbered> numbered = ReadNumbered(label);
        ascend = ascend && numbered && numbered->before == alike->before && numbered->behind == alike->behind;
        if (!ascend) continue;
        if (category == 1) step = numbered->number - before;
        ascend = category < 2 || (step != 0 && numbered->number - before == step);
        before = numbered->number;
    }
    return areNumbers || ascend;
}

int CategorySequence::OwnSteps() const {
    return kind_ == Kind::Numbers ? NiceSteps : kind_ == Kind::Dates ? static_cast<int>(DateSteps.size()) : 0;
}

bool CategorySequence::IsKept(int category, int step) const {
    if (step >= OwnSteps()) return category % NiceStride(step - OwnSteps()) == 0;
    if (kind_ == Kind::Numbers) return (firstNumber_ + category * numberStep_) % NiceStride(step) == 0;
    const DateStep by = DateSteps[static_cast<std::size_t>(step)];
    const DateLabel& date = dates_[static_cast<std::size_t>(category)];
    return category == 0 ? Begins(date, by)
                         : UnitOf(date, by) != UnitOf(dates_[static_cast<std::size_t>(category) - 1], by);
}

QString CategorySequence::TextAt(int category, int step) const {
    const bool isDate = kind_ == Kind::Dates && step < OwnSteps();
    return isDate ? ShortText(Text(category), dates_[static_cast<std::size_t>(category)],
                              DateSteps[static_cast<std::size_t>(step)])
                  : Text(category);
}

std::optional<std::vector<KeptCategory>> CategorySequence::Kept(int step, double most) {
    if (kind_ == Kind::Unknown) kind_ = FindOut();
    if (step >= OwnSteps() && NiceStride(step - OwnSteps()) >= count_) return std::nullopt;
    std::vector<int> categories;
    for (int category = 0; category < count_; ++category)
        if (IsKept(category, step)) categories.push_back(category);
    std::vector<KeptCategory> kept;
    if (categories.size() < 2 || static_cast<double>(categories.size()) > most) return kept;
    for (const int category : categories) kept.push_back({category, TextAt(category, step)});
    return kept;
}

} // namespace QmChart6
