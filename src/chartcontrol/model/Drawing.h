#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace QmChart6 {

/// A 24-bit colour, three components from 0 to 255.
struct Colour {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    /// Components outside 0 to 255 raise error 380.
    void Set(int red, int green, int blue);

    friend bool operator==(const Colour&, const Colour&) = default;
};

/// The colour as one number: red in the low byte, then green, then blue.
[[nodiscard]] constexpr std::int32_t NumberOf(Colour colour) {
    return colour.Red | colour.Green << 8 | colour.Blue << 16;
}

/// The colour as "#rrggbb".
[[nodiscard]] QByteArray ColourText(Colour colour);

/// A line's look. Width in points.
struct Pen {
    PenStyle Style = PenStyle::Solid;
    double Width = 0.75;
    Colour VtColor;

    friend bool operator==(const Pen&, const Pen&) = default;
};

/// A fill's look: FillColor lies behind, the pattern or hatch of number Index is drawn on it in PatternColor.
struct Brush {
    BrushStyle Style = BrushStyle::Solid;
    int Index = 0;
    Colour FillColor{255, 255, 255};
    Colour PatternColor{255, 255, 255};

    friend bool operator==(const Brush&, const Brush&) = default;
};

struct Frame {
    FrameStyle Style = FrameStyle::None;
    double Width = 0.75;
    Colour FrameColor{200, 205, 212};

    friend bool operator==(const Frame&, const Frame&) = default;
};

struct Fill {
    FillStyle Style = FillStyle::Brush;
    QmChart6::Brush Brush;

    friend bool operator==(const Fill&, const Fill&) = default;
};

/// What lies behind a part: its fill, and the frame round it.
struct Backdrop {
    QmChart6::Frame Frame;
    QmChart6::Fill Fill;

    friend bool operator==(const Backdrop&, const Backdrop&) = default;
};

/// A text's font. Size in points, Style and Effect as the Font... bits.
struct Font {
    QString Name = QStringLiteral("Arial");
    double Size = 9;
    int Style = 0;
    int Effect = 0;
    Colour VtColor{64, 70, 80};

    friend bool operator==(const Font&, const Font&) = default;
};

struct TextLayout {
    QmChart6::Orientation Orientation = QmChart6::Orientation::Horizontal;
    HorizontalAlignment HorzAlignment = HorizontalAlignment::Center;
    VerticalAlignment VertAlignment = VerticalAlignment::Center;

    friend bool operator==(const TextLayout&, const TextLayout&) = default;
};

/// A place in points from the chart's top left corner, y downwards.
struct Coordinate {
    double X = 0;
    double Y = 0;

    void Set(double x, double y) {
        X = x;
        Y = y;
    }
    friend bool operator==(const Coordinate&, const Coordinate&) = default;
};

struct CoordinateRect {
    Coordinate Min;
    Coordinate Max;

    friend bool operator==(const CoordinateRect&, const CoordinateRect&) = default;
};

/// Where a part stands: at an edge or corner, or (Custom) within Rect.
struct Location {
    QmChart6::LocationType LocationType = QmChart6::LocationType::Top;
    CoordinateRect Rect;
    /// The size of the chart that Rect was chosen in; in one of another size Rect keeps its shares of the
    /// whole. 0 by 0: it is the same in a chart of any size.
    Coordinate Within = {};

    friend bool operator==(const Location&, const Location&) = default;
};

} // namespace QmChart6
