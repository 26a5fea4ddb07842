#include "chartcontrol/layout/axes/CategorySequence.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <numeric>

namespace QmChart6 {

namespace {

/// "Week 12" is a number with a name before it; a longer text round a number is a name.
constexpr qsizetype LongestRoundNumber = 12;
/// Of more categories than this only so many are looked at to find out what they are.
constexpr int MostSamples = 512;

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
    FindOut();
    return kind_ == Kind::Names;
}

void CategorySequence::FindOut() {
    if (kind_ == Kind::Unknown) kind_ = KindOf();
}

CategorySequence::Kind CategorySequence::KindOf() {
    if (AreNumbers()) return Kind::Numbers;
    if (AreDates()) return Ascend() ? Kind::Dates : Kind::Others;
    return AreNumbered() ? Kind::Others : Kind::Names;
}

/// The categories that are looked at: all of them, or evenly spread ones, the first two and the last among
/// them.
std::vector<int> CategorySequence::Samples() const {
    const int stride = std::max(1, count_ / MostSamples);
    std::vector<int> samples;
    for (int category = 0; category < count_; category += stride) samples.push_back(category);
    if (stride > 1) samples.insert(samples.begin() + 1, 1);
    if (samples.back() != count_ - 1) samples.push_back(count_ - 1);
    return samples;
}

/// Whole numbers, each as far from the one before as the first two.
bool CategorySequence::AreNumbers() {
    for (const int category : Samples()) {
        bool isNumber = false;
        const std::int64_t number = Text(category).toInt(&isNumber);
        if (!isNumber) return false;
        if (category == 0) firstNumber_ = number;
        if (category == 1) numberStep_ = number - firstNumber_;
        if (number != firstNumber_ + category * numberStep_) return false;
    }
    return numberStep_ != 0;
}

bool CategorySequence::AreDates() {
    const std::optional<DateLabel> first = ReadDateLabel(Text(0));
    if (!first) return false;
    dates_.resize(static_cast<std::size_t>(count_));
    for (const int category : Samples()) {
        const std::optional<DateLabel> date = ReadDateLabel(Text(category));
        if (!date || date->form != first->form || date->hasTime != first->hasTime) return false;
        dates_[static_cast<std::size_t>(category)] = date;
    }
    return true;
}

/// One that is no date, between samples that are, stands where the one before it does.
const DateLabel& CategorySequence::DateAt(int category) {
    std::optional<DateLabel>& date = dates_[static_cast<std::size_t>(category)];
    if (date) return *date;
    date = ReadDateLabel(Text(category));
    if (date && monthFirst_) date->ExchangeDayAndMonth();
    if (!date) date = DateAt(category - 1);
    return *date;
}

/// Whether the dates ascend, with days and months exchanged perhaps. Where they do either way, the country of
/// the locale decides.
bool CategorySequence::Ascend() {
    const std::vector<int> samples = Samples();
    const auto ascend = [&] {
        const auto isValid = [this](int category) { return DateAt(category).month <= MonthsOfYear; };
        const auto minutes = [this](int category) {
            return DateAt(category).DayNumber() * HoursOfDay * MinutesOfHour + DateAt(category).minute;
        };
        return std::ranges::all_of(samples, isValid) && std::ranges::is_sorted(samples, {}, minutes) &&
               minutes(samples.front()) < minutes(samples.back());
    };
    const auto exchange = [&] {
        for (const int category : samples) dates_[static_cast<std::size_t>(category)]->ExchangeDayAndMonth();
        monthFirst_ = !monthFirst_;
    };
    if (DateAt(0).form != DateLabel::Form::DayOrMonth) return ascend();
    if (QLocale().dateFormat(QLocale::ShortFormat).startsWith(QLatin1Char('M'))) exchange();
    if (ascend()) return true;
    exchange();
    return ascend();
}

/// Numbers, or numbers that ascend evenly in short texts that are else the same.
bool CategorySequence::AreNumbered() const {
    const std::vector<int> samples = Samples();
    const auto isNumber = [this](int category) {
        bool is = false;
        static_cast<void>(Text(category).toDouble(&is));
        return is;
    };
    if (isNumber(0)) return std::ranges::all_of(samples, isNumber);
    const QString firstText = Text(0);
    const std::optional<Numbered> first = ReadNumbered(firstText);
    const QString secondText = count_ > 1 ? Text(1) : QString();
    const std::optional<Numbered> second = ReadNumbered(secondText);
    if (!first || !second || first->number == second->number) return false;
    const std::int64_t step = second->number - first->number;
    return std::ranges::all_of(samples, [&](int category) {
        const QString text = Text(category);
        const std::optional<Numbered> numbered = ReadNumbered(text);
        return numbered && numbered->before == first->before && numbered->behind == first->behind &&
               numbered->number == first->number + category * step;
    });
}

int CategorySequence::OwnSteps() const {
    return kind_ == Kind::Numbers ? NiceSteps : kind_ == Kind::Dates ? static_cast<int>(DateSteps.size()) : 0;
}

std::vector<int> CategorySequence::NumbersAt(std::int64_t step, double most) const {
    const std::int64_t common = std::gcd(numberStep_, step);
    std::vector<int> categories;
    if (firstNumber_ % common != 0 || count_ / static_cast<double>(step / common) > most + 1)
        return categories;
    std::int64_t category = 0;
    while (category < count_ && (firstNumber_ + category * numberStep_) % step != 0) ++category;
    for (; category < count_; category += step / common) categories.push_back(static_cast<int>(category));
    return categories;
}

/// The first category behind this one that stands in another of the units; the count where there is none.
int CategorySequence::NextUnit(int category, int step) {
    const DateStep by = DateSteps[static_cast<std::size_t>(step)];
    const std::int64_t unit = UnitOf(DateAt(category), by);
    // Dates ascend: by leaps of growing width, then by halves.
    int same = category;
    int leap = 1;
    while (same + leap < count_ && UnitOf(DateAt(same + leap), by) == unit) {
        same += leap;
        leap *= 2;
    }
    int other = std::min(same + leap, count_);
    while (other - same > 1) {
        const int middle = same + (other - same) / 2;
        (UnitOf(DateAt(middle), by) == unit ? same : other) = middle;
    }
    return other;
}

std::vector<int> CategorySequence::DatesAt(int step, double most) {
    std::vector<int> categories;
    if (Begins(DateAt(0), DateSteps[static_cast<std::size_t>(step)])) categories.push_back(0);
    for (int next = NextUnit(0, step); next < count_; next = NextUnit(next, step)) {
        categories.push_back(next);
        if (static_cast<double>(categories.size()) > most) return categories;
    }
    return categories;
}

std::optional<std::vector<KeptCategory>> CategorySequence::Kept(int step, double most) {
    if (count_ == 0) return std::nullopt;
    FindOut();
    std::vector<int> categories;
    if (step >= OwnSteps()) {
        const std::int64_t stride = NiceStride(step - OwnSteps());
        if (stride >= count_) return std::nullopt;
        if (count_ / static_cast<double>(stride) <= most + 1)
            for (std::int64_t category = 0; category < count_; category += stride)
                categories.push_back(static_cast<int>(category));
    } else {
        categories = kind_ == Kind::Dates ? DatesAt(step, most) : NumbersAt(NiceStride(step), most);
    }
    std::vector<KeptCategory> kept;
    if (categories.size() < 2 || static_cast<double>(categories.size()) > most) return kept;
    const bool areDates = kind_ == Kind::Dates && step < OwnSteps();
    for (const int category : categories)
        kept.push_back({category, areDates ? ShortText(Text(category), DateAt(category),
                                                       DateSteps[static_cast<std::size_t>(step)])
                                           : Text(category)});
    return kept;
}

} // namespace QmChart6
