#include "chartcontrol/layout/axes/DateLabel.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace QmChart6 {

namespace {

constexpr int MonthsOfQuarter = 3;

/// The names of each month in the four languages, long and short.
constexpr std::array<const char16_t*, MonthsOfYear> MonthNames{
    u"january jan janeiro enero ene gennaio gen",
    u"february feb fevereiro fev febrero febbraio",
    u"march mar março marzo",
    u"april apr abril abr aprile",
    u"may maio mai mayo maggio mag",
    u"june jun junho junio giugno giu",
    u"july jul julho julio luglio lug",
    u"august aug agosto ago",
    u"september sep sept setembro set septiembre setiembre settembre",
    u"october oct outubro out octubre ottobre ott",
    u"november nov novembro noviembre novembre",
    u"december dec dezembro dez diciembre dic dicembre",
};

/// 1 to 12; 0 for a word that names no month.
int MonthOf(QStringView word) {
    static const QHash<QString, int> months = [] {
        QHash<QString, int> all;
        for (int month = 1; month <= MonthsOfYear; ++month)
            for (const QString& name :
                 QString::fromUtf16(MonthNames[static_cast<std::size_t>(month) - 1]).split(QLatin1Char(' ')))
                all.insert(name, month);
        return all;
    }();
    return months.value(word.toString().toLower(), 0);
}

bool IsSeparator(QChar character) {
    return character == u' ' || character == u'-' || character == u'/' || character == u'.' ||
           character == u',' || character == u':';
}

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// A number, or a word, of a label.
struct Token {
    qsizetype begin = 0;
    qsizetype end = 0;
    bool isNumber = false;
    int value = 0; // of a number
};

class DateReader {
public:
    explicit DateReader(QStringView text) : text_(text) {}

    std::optional<DateLabel> Read() {
        if (!Split()) return std::nullopt;
        TakeTime();
        TakeWords();
        const bool isDate = !isOdd_ && (quarter_ > 0  ? ReadQuarter()
                                        : month_ > 0  ? ReadNamedMonth()
                                        : count_ == 2 ? ReadMonth()
                                        : count_ == 3 ? ReadDay()
                                                      : false);
        const bool isValid = isDate && date_.year >= 1 && date_.month >= 1 && date_.day >= 1 &&
                             date_.day <= 31 &&
                             date_.month <= (date_.form == DateLabel::Form::DayOrMonth ? 31 : MonthsOfYear);
        return isValid ? std::optional(date_) : std::nullopt;
    }

private:
    static constexpr std::size_t MostTokens = 8;

    [[nodiscard]] QStringView TextOf(const Token& token) const {
        return text_.mid(token.begin, token.end - token.begin);
    }
    [[nodiscard]] bool IsYear(const Token& token) const { return token.end - token.begin == 4; }
    [[nodiscard]] bool IsWord(const Token& token, const char16_t* word) const {
        return TextOf(token).compare(QStringView(word), Qt::CaseInsensitive) == 0;
    }

    /// Into numbers and words; false for a text that holds anything else, or too many of them.
    bool Split() {
        if (text_.isEmpty() || IsSeparator(text_[0])) return false;
        for (qsizetype at = 0; at < text_.size();) {
            if (IsSeparator(text_[at])) {
                ++at;
                continue;
            }
            const bool digits = IsDigit(text_[at]);
            if ((!digits && !text_[at].isLetter()) || count_ == MostTokens) return false;
            Token token{at, at, digits, 0};
            while (token.end < text_.size() &&
                   (digits ? IsDigit(text_[token.end]) : text_[token.end].isLetter())) {
                if (digits && token.end - at == 4) return false;
                if (digits) token.value = 10 * token.value + text_[token.end].digitValue();
                ++token.end;
            }
            tokens_[count_++] = token;
            at = token.end;
        }
        date_.timeBegin = text_.size();
        return count_ >= 2;
    }

    void Drop(std::size_t index) {
        for (std::size_t i = index + 1; i < count_; ++i) tokens_[i - 1] = tokens_[i];
        --count_;
    }

    /// Hours and minutes, with seconds perhaps, at the end.
    void TakeTime() {
        for (std::size_t i = 0; i + 1 < count_; ++i) {
            const Token& hour = tokens_[i];
            if (!hour.isNumber || hour.end >= text_.size() || text_[hour.end] != u':') continue;
            isOdd_ = count_ - i > 3 || hour.value > 23 || tokens_[i + 1].value > 59;
            date_.hasTime = true;
            date_.minute = 60 * hour.value + tokens_[i + 1].value;
            const bool marked = i > 0 && IsWord(tokens_[i - 1], u"T");
            date_.timeBegin = marked ? tokens_[i - 1].begin : hour.begin;
            count_ = marked ? i - 1 : i;
            return;
        }
    }

    /// The month's or the quarter's name, and small words; no other word belongs to a date.
    void TakeWords() {
        for (std::size_t i = 0; i < count_ && !isOdd_;) {
            if (tokens_[i].isNumber) {
                ++i;
                continue;
            }
            if (IsWord(tokens_[i], u"Q") || IsWord(tokens_[i], u"T")) {
                TakeQuarter(i);
                continue;
            }
            const bool isSmall =
                IsWord(tokens_[i], u"de") || IsWord(tokens_[i], u"di") || IsWord(tokens_[i], u"del");
            if (!isSmall) {
                isOdd_ = month_ > 0;
                month_ = MonthOf(TextOf(tokens_[i]));
                isOdd_ = isOdd_ || month_ == 0;
            }
            Drop(i);
        }
    }

    /// "Q1" or "1Q".
    void TakeQuarter(std::size_t letter) {
        const auto isQuarter = [&](std::size_t i) {
            return i < count_ && tokens_[i].isNumber && tokens_[i].value >= 1 && tokens_[i].value <= 4 &&
                   tokens_[i].end - tokens_[i].begin == 1;
        };
        const std::size_t number = isQuarter(letter + 1) && tokens_[letter + 1].begin == tokens_[letter].end
                                       ? letter + 1
                                       : letter - 1;
        isOdd_ = quarter_ > 0 || !isQuarter(number);
        if (isOdd_) return;
        quarter_ = tokens_[number].value;
        Drop(std::max(letter, number));
        Drop(std::min(letter, number));
    }

    bool ReadQuarter() {
        if (count_ != 1 || month_ > 0 || !IsYear(tokens_[0])) return false;
        date_.form = DateLabel::Form::Quarter;
        date_.year = tokens_[0].value;
        date_.month = MonthsOfQuarter * (quarter_ - 1) + 1;
        return true;
    }

    bool ReadNamedMonth() {
        date_.month = month_;
        if (count_ == 1 && IsYear(tokens_[0])) {
            date_.year = tokens_[0].value;
            return true;
        }
        if (count_ != 2 || IsYear(tokens_[0]) == IsYear(tokens_[1])) return false;
        return SetDay(IsYear(tokens_[0]) ? tokens_[1] : tokens_[0],
                      IsYear(tokens_[0]) ? tokens_[0] : tokens_[1]);
    }

    bool ReadMonth() {
        if (IsYear(tokens_[0]) == IsYear(tokens_[1])) return false;
        const bool yearFirst = IsYear(tokens_[0]);
        date_.year = tokens_[yearFirst ? 0 : 1].value;
        date_.month = tokens_[yearFirst ? 1 : 0].value;
        return true;
    }

    /// Year, month and day; or a year behind two numbers, of which it is known only with points between them
    /// that the first is the day.
    bool ReadDay() {
        if (IsYear(tokens_[1]) || IsYear(tokens_[0]) == IsYear(tokens_[2])) return false;
        date_.month = tokens_[1].value;
        if (IsYear(tokens_[0])) return SetDay(tokens_[2], tokens_[0]);
        SetDay(tokens_[0], tokens_[2]);
        date_.monthBegin = tokens_[1].begin;
        date_.monthEnd = tokens_[1].end;
        if (text_[tokens_[0].end] != u'.') date_.form = DateLabel::Form::DayOrMonth;
        return true;
    }

    bool SetDay(const Token& day, const Token& year) {
        date_.form = DateLabel::Form::Day;
        date_.year = year.value;
        date_.day = day.value;
        date_.dayBegin = day.begin;
        date_.dayEnd = day.end;
        return true;
    }

    QStringView text_;
    std::array<Token, MostTokens> tokens_{};
    std::size_t count_ = 0;
    int month_ = 0;
    int quarter_ = 0;
    bool isOdd_ = false;
    DateLabel date_;
};

} // namespace

std::int64_t DateLabel::DayNumber() const {
    // Of the proleptic Gregorian calendar, from March on, so that a leap day ends its year.
    constexpr std::int64_t daysOfEra = 146097;
    const std::int64_t y = month <= 2 ? year - 1 : year;
    const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    // Day 0 of the count is a Wednesday.
    return era * daysOfEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear + 2;
}

void DateLabel::ExchangeDayAndMonth() {
    std::swap(day, month);
    std::swap(dayBegin, monthBegin);
    std::swap(dayEnd, monthEnd);
}

std::optional<DateLabel> ReadDateLabel(const QString& label) {
    return DateReader(label).Read();
}

QString WithoutTime(const QString& label, const DateLabel& date) {
    return label.left(date.timeBegin).trimmed();
}

QString WithoutDay(const QString& label, const DateLabel& date) {
    const auto isPart = [](QChar character) { return character.isLetterOrNumber(); };
    qsizetype before = date.dayBegin;
    while (before > 0 && !isPart(label[before - 1])) --before;
    qsizetype behind = date.dayEnd;
    while (behind < date.timeBegin && !isPart(label[behind])) ++behind;
    const QString first = label.left(before);
    QString second = label.mid(behind, date.timeBegin - behind).trimmed();
    for (const char16_t* small : {u"de ", u"di ", u"del "})
        if (first.isEmpty() && second.startsWith(QString::fromUtf16(small)))
            second.remove(0, QString::fromUtf16(small).size());
    if (first.isEmpty() || second.isEmpty()) return first + second;
    const QChar separator = label[date.dayEnd] == u',' ? QChar(u' ') : label[date.dayEnd];
    return first + separator + second;
}

} // namespace QmChart6
