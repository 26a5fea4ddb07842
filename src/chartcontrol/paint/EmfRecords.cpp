#include "chartcontrol/paint/EmfRecords.h"

#include "base/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace QmChart6 {

namespace {

enum RecordType : std::uint32_t {
    HeaderRecord = 1,
    PolygonRecord = 3,
    PolylineRecord = 4,
    PolyPolylineRecord = 7,
    PolyPolygonRecord = 8,
    SetWindowExtent = 9,
    SetWindowOrigin = 10,
    SetViewportExtent = 11,
    SetViewportOrigin = 12,
    EndOfFile = 14,
    SetMapMode = 17,
    SetBackgroundMode = 18,
    SetPolygonFillMode = 19,
    SetTextAlign = 22,
    SetTextColor = 24,
    IntersectClipRect = 30,
    SaveState = 33,
    RestoreState = 34,
    SelectObject = 37,
    CreateBrushIndirect = 39,
    BeginPath = 59,
    EndPath = 60,
    SelectClipPath = 67,
    ExtCreateFontIndirect = 82,
    ExtTextOut = 84,
    ExtCreatePen = 95,
    AlphaBlend = 114,
};

constexpr double UnitsPerPoint = TwipsPerPoint;
constexpr int HeaderSize = 108;
/// Where the header keeps what is known at the end only.
constexpr int OffsetOfBytes = 48;
constexpr int OffsetOfRecords = 52;
constexpr int OffsetOfHandles = 56;

/// The device that the file says it was made for: 96 pixels to the inch.
constexpr int DeviceWidth = 1920;
constexpr int DeviceHeight = 1080;

void Put32(QByteArray& bytes, qsizetype at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>(value >> (8 * i) & 0xff);
}

} // namespace

/// One record on its way: its fields are appended, its size is set and padded when it ends.
class EmfRecords::Record {
public:
    Record(EmfRecords& file, std::uint32_t type) : file_(file), start_(file.bytes_.size()) {
        U32(type);
        U32(0);
    }
    ~Record() {
        while (Size() % 4 != 0) U8(0);
        Put32(file_.bytes_, start_ + 4, static_cast<std::uint32_t>(Size()));
        ++file_.records_;
    }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    void U8(std::uint32_t value) { file_.bytes_.append(static_cast<char>(value & 0xff)); }
    void U16(std::uint32_t value) {
        U8(value);
        U8(value >> 8);
    }
    void U32(std::uint32_t value) {
        U16(value & 0xffff);
        U16(value >> 16);
    }
    void I32(std::int32_t value) { U32(static_cast<std::uint32_t>(value)); }
    void F32(float value) {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        U32(bits);
    }
    void At(Point point) {
        I32(Unit(point.x));
        I32(Unit(point.y));
    }
    void Rect(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
        for (const std::int32_t side : {left, top, right, bottom}) I32(side);
    }
    void BoundsOf(std::span<const Point> points) {
        if (points.empty()) {
            Rect(0, 0, -1, -1);
            return;
        }
        const Box box = Box::Around(points);
        Rect(Unit(box.left), Unit(box.top), Unit(box.right), Unit(box.bottom));
    }
    /// UTF-16 in a field of so many units, zeros behind.
    void Utf16(const QString& text, qsizetype units) {
        for (qsizetype i = 0; i < units; ++i) U16(i < text.size() ? text[i].unicode() : 0);
    }
    void Zeros(int count) {
        for (int i = 0; i < count; ++i) U8(0);
    }
    void Align() {
        while (Size() % 4 != 0) U8(0);
    }
    [[nodiscard]] qsizetype Size() const { return file_.bytes_.size() - start_; }

private:
    EmfRecords& file_;
    qsizetype start_;
};

EmfRecords::EmfRecords(const Size& size) {
    Header(size);
    constexpr std::uint32_t anisotropic = 8;
    constexpr std::uint32_t transparent = 1;
    constexpr std::uint32_t alternate = 1;
    Number(SetMapMode, anisotropic);
    Pair(SetWindowOrigin, 0, 0);
    Pair(SetWindowExtent, Unit(size.width), Unit(size.height));
    Pair(SetViewportOrigin, 0, 0);
    Pair(SetViewportExtent, static_cast<std::int32_t>(std::lround(size.width / PointsPerPixel)),
         static_cast<std::int32_t>(std::lround(size.height / PointsPerPixel)));
    Number(SetBackgroundMode, transparent);
    Number(SetPolygonFillMode, alternate);
}

void EmfRecords::Header(const Size& size) {
    constexpr std::uint32_t signature = 0x464d4520;
    constexpr std::uint32_t version = 0x10000;
    const auto pixels = [](double points) {
        return static_cast<std::int32_t>(std::lround(points / PointsPerPixel));
    };
    const auto hundredths = [](double points) {
        return static_cast<std::int32_t>(std::lround(points / PointsPerInch * MillimetresPerInch * 100));
    };
    Record record(*this, HeaderRecord);
    record.Rect(0, 0, pixels(size.width) - 1, pixels(size.height) - 1);
    record.Rect(0, 0, hundredths(size.width), hundredths(size.height));
    record.U32(signature);
    record.U32(version);
    record.U32(0); // bytes, records and handles: see Finish
    record.U32(0);
    record.U16(0);
    record.U16(0);
    record.U32(0); // no description
    record.U32(0);
    record.U32(0); // no palette
    record.U32(DeviceWidth);
    record.U32(DeviceHeight);
    record.U32(static_cast<std::uint32_t>(std::lround(DeviceWidth / PixelsPerInch * MillimetresPerInch)));
    record.U32(static_cast<std::uint32_t>(std::lround(DeviceHeight / PixelsPerInch * MillimetresPerInch)));
    record.Zeros(12); // no pixel format
    record.U32(
        static_cast<std::uint32_t>(std::lround(DeviceWidth / PixelsPerInch * MillimetresPerInch * 1000)));
    record.U32(
        static_cast<std::uint32_t>(std::lround(DeviceHeight / PixelsPerInch * MillimetresPerInch * 1000)));
    static_assert(HeaderSize == 108);
}

QByteArray EmfRecords::Finish() {
    {
        Record record(*this, EndOfFile);
        record.U32(0);
        record.U32(0);
        record.U32(20); // the record's own size once more
    }
    Put32(bytes_, OffsetOfBytes, static_cast<std::uint32_t>(bytes_.size()));
    Put32(bytes_, OffsetOfRecords, records_);
    Put32(bytes_, OffsetOfHandles, handles_);
    return bytes_;
}

std::int32_t EmfRecords::Unit(double points) {
    constexpr double most = 1e8;
    return static_cast<std::int32_t>(std::lround(std::clamp(points * UnitsPerPoint, -most, most)));
}

void EmfRecords::Number(std::uint32_t type, std::uint32_t value) {
    Record(*this, type).U32(value);
}

void EmfRecords::Pair(std::uint32_t type, std::int32_t first, std::int32_t second) {
    Record record(*this, type);
    record.I32(first);
    record.I32(second);
}

/// A record that says nothing but its type.
void EmfRecords::Mark(std::uint32_t type) {
    const Record record(*this, type);
}

void EmfRecords::Save() {
    Mark(SaveState);
}

void EmfRecords::Restore() {
    Record(*this, RestoreState).I32(-1);
}

void EmfRecords::Clip(const Box& box) {
    Record(*this, IntersectClipRect).Rect(Unit(box.left), Unit(box.top), Unit(box.right), Unit(box.bottom));
}

void EmfRecords::ClipTo(std::span<const Point> outline) {
    constexpr std::uint32_t intersect = 1;
    Mark(BeginPath);
    Polygon(outline);
    Mark(EndPath);
    Number(SelectClipPath, intersect);
}

/// A bitmap of one pixel of that colour, stretched.
void EmfRecords::Blend(const Box& box, Colour colour, double opacity) {
    constexpr std::uint32_t fixedSize = 108; // up to the bitmap
    constexpr std::uint32_t headerSize = 40;
    constexpr std::uint32_t pixelSize = 4;
    Record record(*this, AlphaBlend);
    record.Rect(Unit(box.left), Unit(box.top), Unit(box.right), Unit(box.bottom));
    record.Rect(Unit(box.left), Unit(box.top), Unit(box.Width()), Unit(box.Height()));
    record.U32(static_cast<std::uint32_t>(std::lround(opacity * 255)) << 16); // over, one opacity for all
    record.I32(0);                                                            // from the pixel's corner
    record.I32(0);
    for (const float cell : {1.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F}) record.F32(cell);
    record.U32(0xffffff); // ground of the bitmap
    record.U32(0);        // colours as they are
    record.U32(fixedSize);
    record.U32(headerSize);
    record.U32(fixedSize + headerSize);
    record.U32(pixelSize);
    record.I32(1);
    record.I32(1);
    record.U32(headerSize);
    record.I32(1);
    record.I32(1);
    record.U16(1);  // plane
    record.U16(32); // bits
    record.Zeros(24);
    record.U8(colour.Blue);
    record.U8(colour.Green);
    record.U8(colour.Red);
    record.U8(0);
}

std::uint32_t EmfRecords::CreatePen(Colour colour, double width) {
    constexpr std::uint32_t geometric = 0x10000;
    constexpr std::uint32_t flatEnds = 0x200;
    Record record(*this, ExtCreatePen);
    record.U32(handles_);
    record.Zeros(16); // no bitmap
    record.U32(geometric | flatEnds);
    record.U32(static_cast<std::uint32_t>(std::max(1, Unit(width))));
    record.U32(0); // solid
    record.U32(static_cast<std::uint32_t>(NumberOf(colour)));
    record.U32(0);
    record.U32(0);
    return handles_++;
}

std::uint32_t EmfRecords::CreateBrush(Colour colour) {
    Record record(*this, CreateBrushIndirect);
    record.U32(handles_);
    record.U32(0); // solid
    record.U32(static_cast<std::uint32_t>(NumberOf(colour)));
    record.U32(0);
    return handles_++;
}

std::uint32_t EmfRecords::CreateFont(const Font& font, double angle) {
    constexpr int faceUnits = 32;
    constexpr int panoseSize = 320;
    constexpr int fontSize = 92;
    const auto tenths = static_cast<std::int32_t>(std::lround(angle * 10));
    Record record(*this, ExtCreateFontIndirect);
    record.U32(handles_);
    record.I32(-Unit(font.Size));
    record.I32(0);
    record.I32(tenths);
    record.I32(tenths);
    record.I32((font.Style & FontBold) != 0 ? 700 : 400);
    record.U8((font.Style & FontItalic) != 0 ? 1 : 0);
    record.U8((font.Effect & FontUnderline) != 0 ? 1 : 0);
    record.U8((font.Effect & FontStrikethrough) != 0 ? 1 : 0);
    record.U8(1); // any character set
    record.Zeros(4);
    record.Utf16(font.Name.left(faceUnits - 1), faceUnits);
    record.Zeros(panoseSize - fontSize);
    return handles_++;
}

void EmfRecords::Select(std::uint32_t object) {
    Number(SelectObject, object);
}

void EmfRecords::Points(std::uint32_t type, std::span<const Point> points) {
    Record record(*this, type);
    record.BoundsOf(points);
    record.U32(static_cast<std::uint32_t>(points.size()));
    for (const Point& point : points) record.At(point);
}

void EmfRecords::Runs(std::uint32_t type, std::span<const Point> points, std::span<const PointRun> runs) {
    if (runs.empty()) return;
    Record record(*this, type);
    record.BoundsOf(points);
    std::size_t count = 0;
    for (const PointRun& run : runs) count += run.count;
    record.U32(static_cast<std::uint32_t>(runs.size()));
    record.U32(static_cast<std::uint32_t>(count));
    for (const PointRun& run : runs) record.U32(static_cast<std::uint32_t>(run.count));
    for (const PointRun& run : runs)
        for (const Point& point : points.subspan(run.first, run.count)) record.At(point);
}

void EmfRecords::Polygon(std::span<const Point> points) {
    Points(PolygonRecord, points);
}
void EmfRecords::Polyline(std::span<const Point> points) {
    Points(PolylineRecord, points);
}
void EmfRecords::PolyPolyline(std::span<const Point> points, std::span<const PointRun> runs) {
    Runs(PolyPolylineRecord, points, runs);
}
void EmfRecords::PolyPolygon(std::span<const Point> points, std::span<const PointRun> runs) {
    Runs(PolyPolygonRecord, points, runs);
}

void EmfRecords::Text(const QString& text, Point origin, TextAnchor anchor, Colour colour,
                      std::span<const double> advances) {
    constexpr std::uint32_t baseLine = 24;
    constexpr std::uint32_t center = 6;
    constexpr std::uint32_t right = 2;
    const std::uint32_t alignment = baseLine | (anchor == TextAnchor::Start    ? 0
                                                : anchor == TextAnchor::Middle ? center
                                                                               : right);
    if (alignment != alignment_) Number(SetTextAlign, alignment);
    alignment_ = alignment;
    Number(SetTextColor, static_cast<std::uint32_t>(NumberOf(colour)));
    constexpr std::uint32_t textOffset = 76;
    const auto units = static_cast<std::uint32_t>(text.size());
    const std::uint32_t advanceOffset = textOffset + (2 * units + 3) / 4 * 4;
    constexpr std::uint32_t advancedMode = 2;
    Record record(*this, ExtTextOut);
    record.Rect(0, 0, -1, -1);
    record.U32(advancedMode);
    record.F32(1);
    record.F32(1);
    record.At(origin);
    record.U32(units);
    record.U32(textOffset);
    record.U32(0);
    record.Rect(0, 0, -1, -1);
    record.U32(advanceOffset);
    record.Utf16(text, text.size());
    record.Align();
    for (const double advance : advances) record.I32(Unit(advance));
}

} // namespace QmChart6
