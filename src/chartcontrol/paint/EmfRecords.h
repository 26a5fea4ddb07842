#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QByteArray>

#include <cstdint>
#include <span>

namespace QmChart6 {

/// Writes the records of an enhanced metafile one after the other. Coordinates are points of the scene; the
/// file counts in twentieths of a point. Numbers of records and types as in the format's public description
/// ([MS-EMF]).
class EmfRecords {
public:
    /// Handles from 1 on name created objects; those of Stock are always there.
    static constexpr std::uint32_t StockNoBrush = 0x80000005;
    static constexpr std::uint32_t StockNoPen = 0x80000008;

    explicit EmfRecords(const Size& size);

    /// Ends the file and gives its bytes.
    QByteArray Finish();

    void Save();
    void Restore();
    void Clip(const Box& box);
    /// What of the present clip lies within an outline.
    void ClipTo(std::span<const Point> outline);
    /// Lays a colour over a box, with an opacity from 0 to 1.
    void Blend(const Box& box, Colour colour, double opacity);

    [[nodiscard]] std::uint32_t CreatePen(Colour colour, double width);
    [[nodiscard]] std::uint32_t CreateBrush(Colour colour);
    /// Angle in degrees, counter-clockwise.
    [[nodiscard]] std::uint32_t CreateFont(const Font& font, double angle);
    void Select(std::uint32_t object);

    void Polygon(std::span<const Point> points);
    void Polyline(std::span<const Point> points);
    /// Many chains, or outlines, in one record. Each run is a stretch of `points`.
    void PolyPolyline(std::span<const Point> points, std::span<const PointRun> runs);
    void PolyPolygon(std::span<const Point> points, std::span<const PointRun> runs);

    /// One line of text; `advances` are the widths of its UTF-16 units in points.
    void Text(const QString& text, Point origin, TextAnchor anchor, Colour colour,
              std::span<const double> advances);

private:
    class Record;

    static std::int32_t Unit(double points);
    void Header(const Size& size);
    void Mark(std::uint32_t type);
    void Number(std::uint32_t type, std::uint32_t value);
    void Pair(std::uint32_t type, std::int32_t first, std::int32_t second);
    void Points(std::uint32_t type, std::span<const Point> points);
    void Runs(std::uint32_t type, std::span<const Point> points, std::span<const PointRun> runs);

    QByteArray bytes_;
    std::uint32_t records_ = 0;
    std::uint32_t handles_ = 1;
    std::uint32_t alignment_ = 0xffffffff;
};

} // namespace QmChart6
