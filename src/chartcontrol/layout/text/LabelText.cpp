#include "chartcontrol/layout/text/LabelText.h"

#include "base/NumberFormat.h"
#include "chartcontrol/layout/data/Sums.h"
#include "chartcontrol/layout/text/DataFormat.h"

#include <cmath>

namespace QmChart6 {

namespace {

const QString& Separator() {
    static const QString separator = QStringLiteral("; ");
    return separator;
}

/// A number's blanks keep it together.
QString Unbroken(QString number) {
    return number.replace(QLatin1Char(' '), QChar(QChar::Nbsp));
}

} // namespace

bool ShowsLabel(const DataPointLabel& label) {
    return label.LocationType != LabelLocation::None && (label.Custom || label.Component != 0);
}

QStringList LabelTexts::Of(const DataPointLabel& label, int series, int category, double value) {
    const bool showsShare = !label.Custom && (label.Component & LabelShowsPercent) != 0;
    return WithShare(label, series, value, showsShare ? ShareOf(category, value) : 0);
}

QStringList LabelTexts::WithShare(const DataPointLabel& label, int series, double value, double share) {
    if (label.Custom) return {label.Text};
    QStringList pieces;
    if ((label.Component & LabelShowsSeriesName) != 0) pieces += chart_.SeriesName(series);
    if ((label.Component & LabelShowsValue) != 0) pieces += Unbroken(ValueText(value, label.ValueFormat));
    if ((label.Component & LabelShowsPercent) != 0)
        pieces += Unbroken(FormatNumber(share, label.PercentFormat));
    pieces.removeAll(QString());
    return pieces;
}

QString LabelTexts::ValueText(double value, const QString& format) {
    if (!format.isEmpty()) return FormatNumber(value, format);
    if (!format_) format_ = DataFormatOf(chart_);
    return DataText(value, *format_);
}

double LabelTexts::ShareOf(int category, double value) {
    if (sums_.empty()) {
        sums_.assign(static_cast<std::size_t>(chart_.CategoryCount()), 0);
        for (int series = 1; series <= chart_.Plot.SeriesCollection.Count(); ++series) {
            const Values values = chart_.SeriesValues(series);
            for (int i = 0; i < values.count; ++i)
                if (!std::isnan(values[i]))
                    sums_[static_cast<std::size_t>(i)] += std::abs(values[i]) * SumUnit;
        }
    }
    const double sum = sums_[static_cast<std::size_t>(category)];
    return sum > 0 ? value * SumUnit / sum : 0;
}

TextBlock BreakLabel(const QStringList& pieces, const Font& font, Orientation orientation, double length,
                     const TextMeasurer& measurer) {
    constexpr int mostLines = 2; // of a piece
    TextBlock block = BreakText(pieces.join(Separator()), font, orientation, {length, 1}, measurer);
    if (!block.elided || orientation == Orientation::Vertical) return block;
    block.lines.clear();
    block.elided = false;
    for (const QString& piece : pieces) {
        TextBlock lines = BreakText(piece, font, orientation, {length, mostLines}, measurer);
        block.lines.insert(block.lines.end(), lines.lines.begin(), lines.lines.end());
        block.elided = block.elided || lines.elided;
        block.splitsWord = block.splitsWord || lines.splitsWord;
    }
    return block;
}

} // namespace QmChart6
