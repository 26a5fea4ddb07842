#include "chartcontrol/layout/text/TextBlock.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// Line spacing as a part of the font's height.
constexpr double Leading = 1.15;
const QChar Ellipsis(0x2026);

/// No line holds more characters than the thinnest would need; longer texts are not measured beyond.
qsizetype MostCharacters(const Font& font, double length) {
    constexpr double thinnest = 0.15;
    return static_cast<qsizetype>(std::max(0.0, length) / (thinnest * std::max(1.0, font.Size))) + 2;
}

/// The longest beginning of a text that fits, cut between characters as people see them.
qsizetype FittingCharacters(const QString& text, const Font& font, double length,
                            const TextMeasurer& measurer, const QString& ending = {}) {
    qsizetype fits = 0;
    qsizetype tooLong = std::min(text.size(), MostCharacters(font, length)) + 1;
    while (tooLong - fits > 1) {
        const qsizetype middle = (fits + tooLong) / 2;
        const bool ok = measurer.Measure(text.left(middle) + ending, font).width <= length;
        (ok ? fits : tooLong) = middle;
    }
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.setPosition(fits);
    return characters.isAtBoundary() ? fits : std::max<qsizetype>(0, characters.toPreviousBoundary());
}

/// Head and tail of the text round an ellipsis, the head the longer.
QString ElideMiddle(const QString& text, const Font& font, double length, const TextMeasurer& measurer) {
    const auto shortened = [&](qsizetype kept) {
        const qsizetype head = (3 * kept + 4) / 5;
        return text.left(head).trimmed() + Ellipsis + text.right(kept - head).trimmed();
    };
    qsizetype fits = 0;
    qsizetype tooLong = std::min(text.size(), MostCharacters(font, length));
    while (tooLong - fits > 1) {
        const qsizetype middle = (fits + tooLong) / 2;
        (measurer.Measure(shortened(middle), font).width <= length ? fits : tooLong) = middle;
    }
    return fits == 0 ? QString() : shortened(fits);
}

TextBlock EmptyBlock(const Font& font, Orientation orientation, const TextMeasurer& measurer) {
    TextBlock block;
    block.font = font;
    block.orientation = orientation;
    const TextExtent line = measurer.Measure(QStringLiteral("x"), font);
    block.ascent = line.ascent;
    block.descent = line.descent;
    block.leading = Leading * line.Height();
    return block;
}

class Breaker {
public:
    Breaker(TextBlock& block, const TextRoom& room, const TextMeasurer& measurer)
        : block_(block), room_(room), measurer_(measurer) {}

    void Paragraph(const QString& paragraph) {
        QString line;
        for (const QString& word : paragraph.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (Full()) {
                block_.elided = true;
                return;
            }
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (Width(longer) <= room_.length) {
                line = longer;
                continue;
            }
            if (!line.isEmpty()) Finish(line, word);
            line = Full() ? QString() : LongWord(word);
        }
        if (!line.isEmpty() || paragraph.trimmed().isEmpty()) Finish(line, {});
    }

private:
    [[nodiscard]] bool Full() const { return static_cast<int>(block_.lines.size()) >= room_.lines; }
    [[nodiscard]] double Width(const QString& text) const {
        if (text.size() > MostCharacters(block_.font, room_.length)) return room_.length + 1;
        return measurer_.Measure(text, block_.font).width;
    }

    /// Ends a line. On the last one, what comes next no longer fits: it is told by an ellipsis.
    void Finish(const QString& line, const QString& next) {
        if (Full()) {
            block_.elided = true;
            return;
        }
        const bool last = static_cast<int>(block_.lines.size()) + 1 == room_.lines;
        QString text = line;
        if (last && !next.isEmpty()) {
            text = Elide(line + QLatin1Char(' ') + next, block_.font, room_.length, measurer_);
            block_.elided = true;
        }
        block_.lines.push_back({text, measurer_.Measure(text, block_.font).width});
    }

    /// Breaks a word that is longer than a line; gives what is left for the next line.
    QString LongWord(QString word) {
        while (Width(word) > room_.length) {
            if (static_cast<int>(block_.lines.size()) + 1 == room_.lines) {
                const QString text = Elide(word, block_.font, room_.length, measurer_);
                block_.lines.push_back({text, measurer_.Measure(text, block_.font).width});
                block_.elided = true;
                return {};
            }
            const qsizetype fits =
                std::max<qsizetype>(1, FittingCharacters(word, block_.font, room_.length, measurer_));
            const QString text = word.left(fits);
            block_.lines.push_back({text, measurer_.Measure(text, block_.font).width});
            word = word.mid(fits);
            block_.splitsWord = true;
        }
        return word;
    }

    TextBlock& block_;
    TextRoom room_;
    const TextMeasurer& measurer_;
};

/// One character below the other.
void StackLetters(TextBlock& block, const QString& text, const TextRoom& room, const TextMeasurer& measurer) {
    const auto most = static_cast<std::size_t>(std::max(0.0, room.length / block.leading));
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    qsizetype start = 0;
    for (qsizetype end = characters.toNextBoundary(); end >= 0; end = characters.toNextBoundary()) {
        if (block.lines.size() >= most) {
            block.elided = true;
            return;
        }
        const QString character = text.mid(start, end - start).trimmed();
        block.lines.push_back({character, measurer.Measure(character, block.font).width});
        start = end;
    }
}

Point LineOrigin(const TextBlock& block, std::size_t line, const Box& placed, TextAnchor anchor) {
    const double down = block.ascent + static_cast<double>(line) * block.leading;
    switch (block.orientation) {
    case Orientation::Up:
        return {placed.left + down, placed.Center().y};
    case Orientation::Down:
        return {placed.right - down, placed.Center().y};
    case Orientation::Horizontal:
    case Orientation::Vertical:
        break;
    }
    const double x = anchor == TextAnchor::Start    ? placed.left
                     : anchor == TextAnchor::Middle ? placed.Center().x
                                                    : placed.right;
    return {x, placed.top + down};
}

TextAnchor AnchorOf(const TextBlock& block, HorizontalAlignment horizontal) {
    if (block.orientation != Orientation::Horizontal || horizontal == HorizontalAlignment::Center)
        return TextAnchor::Middle;
    return horizontal == HorizontalAlignment::Left ? TextAnchor::Start : TextAnchor::End;
}

double AngleOf(Orientation orientation) {
    switch (orientation) {
    case Orientation::Up:
        return 90;
    case Orientation::Down:
        return -90;
    case Orientation::Horizontal:
    case Orientation::Vertical:
        break;
    }
    return 0;
}

} // namespace

double TextBlock::Length() const {
    double length = 0;
    for (const Line& line : lines) length = std::max(length, line.width);
    return length;
}

double TextBlock::Depth() const {
    return lines.empty() ? 0 : ascent + descent + leading * static_cast<double>(lines.size() - 1);
}

Size TextBlock::Extent() const {
    const bool turned = orientation == Orientation::Up || orientation == Orientation::Down;
    return turned ? Size{Depth(), Length()} : Size{Length(), Depth()};
}

QString Printable(const QString& text) {
    QString printable = text;
    printable.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    for (QChar& character : printable)
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char(' ');
    return printable;
}

QString Elide(const QString& text, const Font& font, double length, const TextMeasurer& measurer) {
    if (text.size() <= MostCharacters(font, length) && measurer.Measure(text, font).width <= length)
        return text;
    const qsizetype fits = FittingCharacters(text, font, length, measurer, Ellipsis);
    return fits == 0 ? QString() : text.left(fits).trimmed() + Ellipsis;
}

TextBlock ElidedLine(const QString& text, const Font& font, double length, const TextMeasurer& measurer) {
    TextBlock block = EmptyBlock(font, Orientation::Horizontal, measurer);
    QString line = Printable(text).simplified();
    double width =
        line.size() > 2 * MostCharacters(font, length) ? length + 1 : measurer.Measure(line, font).width;
    if (width > length) {
        line = ElideMiddle(line, font, length, measurer);
        width = measurer.Measure(line, font).width;
        block.elided = true;
    }
    if (!line.isEmpty()) block.lines.push_back({line, width});
    return block;
}

TextBlock BreakText(const QString& text, const Font& font, Orientation orientation, const TextRoom& room,
                    const TextMeasurer& measurer) {
    TextBlock block = EmptyBlock(font, orientation, measurer);
    const QString printable = Printable(text).trimmed();
    if (printable.isEmpty() || room.lines < 1) return block;
    if (orientation == Orientation::Vertical) {
        StackLetters(block, printable, room, measurer);
        return block;
    }
    Breaker breaker(block, room, measurer);
    for (const QString& paragraph : printable.split(QLatin1Char('\n'))) breaker.Paragraph(paragraph);
    return block;
}

void PlaceText(SceneBuilder& builder, Part part, const TextBlock& block, const Box& box,
               HorizontalAlignment horizontal, VerticalAlignment vertical) {
    const Size extent = block.Extent();
    const double left = horizontal == HorizontalAlignment::Left    ? box.left
                        : horizontal == HorizontalAlignment::Right ? box.right - extent.width
                                                                   : box.Center().x - extent.width / 2;
    const double top = vertical == VerticalAlignment::Top      ? box.top
                       : vertical == VerticalAlignment::Bottom ? box.bottom - extent.height
                                                               : box.Center().y - extent.height / 2;
    const Box placed{left, top, left + extent.width, top + extent.height};
    const TextAnchor anchor = AnchorOf(block, horizontal);
    for (std::size_t line = 0; line < block.lines.size(); ++line)
        builder.AddText(part,
                        {block.lines[line].text, block.font, LineOrigin(block, line, placed, anchor), anchor,
                         AngleOf(block.orientation), block.lines[line].width, block.ascent, block.descent});
}

} // namespace QmChart6
