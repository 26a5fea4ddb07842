#pragma once

#include "qmchart6/RuntimeError.h"

namespace QmChart6 {

// Every value that hosts, stored looks and dialogs pass as a plain number. The numbers are fixed.

enum class ChartType {
    Bar3D = 0,
    Bar2D = 1,
    Line3D = 2,
    Line2D = 3,
    Area3D = 4,
    Area2D = 5,
    Step3D = 6,
    Step2D = 7,
    Combination3D = 8,
    Combination2D = 9,
    Pie2D = 14,
    XY2D = 16,
};

/// The 2D values; a series of a 3D chart has the value below.
enum class SeriesType {
    Bar3D = 0,
    Bar2D = 1,
    Line3D = 5,
    Line2D = 6,
    Area3D = 7,
    Area2D = 8,
    Step3D = 9,
    Step2D = 10,
    XY2D = 11,
    Pie2D = 24,
};

enum class AxisId { X = 0, Y = 1, SecondaryY = 2, Z = 3 };
enum class ScaleType { Linear = 0, Logarithmic = 1, Percent = 2 };
enum class PercentBasis {
    MaximumOfChart = 0,
    MaximumOfRow = 1,
    MaximumOfColumn = 2,
    SumOfChart = 3,
    SumOfRow = 4,
    SumOfColumn = 5
};
/// The styles behind Dotted are for lines that the control draws of itself; no number stands for them.
enum class PenStyle { None = 0, Solid = 1, Dashed = 2, Dotted = 3, LongDashed, DashDotted };
enum class BrushStyle { None = 0, Solid = 1, Pattern = 2, Hatch = 3 };
enum class FillStyle { None = 0, Brush = 1 };
enum class FrameStyle { None = 0, Single = 1, Double = 2, ThickInner = 3, ThickOuter = 4 };
enum class LocationType {
    TopLeft = 0,
    Top = 1,
    TopRight = 2,
    Left = 3,
    Right = 4,
    BottomLeft = 5,
    Bottom = 6,
    BottomRight = 7,
    Custom = 8
};
enum class LabelLocation {
    None = 0,
    AbovePoint = 1,
    BelowPoint = 2,
    Center = 3,
    Base = 4,
    Inside = 5,
    Outside = 6,
    Left = 7,
    Right = 8
};
enum class LabelLineStyle { None = 0, Straight = 1, Bent = 2 };
enum class SubPlotLabelPosition { None = 0, Above = 1, Below = 2, Center = 3 };
enum class Projection { Perspective = 0, Oblique = 1, Orthogonal = 2 };
enum class AngleUnit { Degrees = 0, Radians = 1, Gradians = 2 };
enum class Orientation { Horizontal = 0, Vertical = 1, Up = 2, Down = 3 };
enum class HorizontalAlignment { Left = 0, Right = 1, Center = 2 };
enum class VerticalAlignment { Top = 0, Bottom = 1, Center = 2 };
enum class MarkerStyle {
    Automatic = 0,
    Circle = 1,
    Square = 2,
    Diamond = 3,
    TriangleUp = 4,
    TriangleDown = 5,
    Plus = 6,
    Cross = 7,
    Star = 8
};

/// Bits of a data label's components.
inline constexpr int LabelShowsValue = 1;
inline constexpr int LabelShowsPercent = 2;
inline constexpr int LabelShowsSeriesName = 4;

/// Bits of a font's style and effect.
inline constexpr int FontBold = 1;
inline constexpr int FontItalic = 2;
inline constexpr int FontOutline = 4;
inline constexpr int FontStrikethrough = 256;
inline constexpr int FontUnderline = 512;

/// Bits of a series' statistics lines.
inline constexpr int StatMinimum = 1;
inline constexpr int StatMaximum = 2;
inline constexpr int StatMean = 4;
inline constexpr int StatStandardDeviation = 8;
inline constexpr int StatRegression = 16;

inline constexpr int PatternCount = 18;
inline constexpr int HatchCount = 6;

/// The enumeration's value of a plain number; a number that it does not have raises error 380.
PenStyle ToPenStyle(int number);
BrushStyle ToBrushStyle(int number);
LocationType ToLocationType(int number);
LabelLocation ToLabelLocation(int number);
LabelLineStyle ToLabelLineStyle(int number);
SubPlotLabelPosition ToSubPlotLabelPosition(int number);
Projection ToProjection(int number);
Orientation ToOrientation(int number);
HorizontalAlignment ToHorizontalAlignment(int number);
VerticalAlignment ToVerticalAlignment(int number);

} // namespace QmChart6
