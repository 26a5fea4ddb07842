#include "support/SceneJson.h"

#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>

namespace QmChart6 {

namespace {

QByteArray Number(double value) {
    if (!std::isfinite(value)) return "null";
    std::array<char, 400> digits{}; // the longest double has 309 digits before the point
    char* end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 3).ptr;
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
    const QByteArray text(digits.data(), end - digits.data());
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray Numbers(std::initializer_list<double> values) {
    QByteArray text = "[";
    for (const double value : values) text += (text.size() > 1 ? ", " : "") + Number(value);
    return text + "]";
}

QByteArray BoxText(const Box& box) {
    return Numbers({box.left, box.top, box.right, box.bottom});
}

/// Half of a surrogate pair without the other has no UTF-8; it is told by its number.
bool IsLoneSurrogate(const QString& text, qsizetype at) {
    if (!text[at].isSurrogate()) return false;
    if (text[at].isHighSurrogate()) return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return at == 0 || !text[at - 1].isHighSurrogate();
}

QByteArray Quoted(const QString& text) {
    QString escaped;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character == u'"' || character == u'\\') {
            escaped += u'\\';
            escaped += character;
        } else if (character.unicode() < 0x20 || character.unicode() == 0x7F || IsLoneSurrogate(text, at)) {
            escaped += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            escaped += character;
        }
    }
    return "\"" + escaped.toUtf8() + "\"";
}

QByteArray QuotedColour(Colour colour) {
    return "\"" + ColourText(colour) + "\"";
}

QByteArray PartName(PartCode code) {
    static constexpr std::array Names{"chart",     "title",       "footnote",  "legend",     "plot",
                                      "series",    "seriesLabel", "dataPoint", "pointLabel", "axis",
                                      "axisLabel", "axisTitle",   "statistics"};
    return Names.at(static_cast<std::size_t>(code));
}

QByteArray FontText(const Font& font) {
    return "[" + Quoted(font.Name) + ", " + Number(font.Size) + ", " + QByteArray::number(font.Style) + ", " +
           QByteArray::number(font.Effect) + ", " + QuotedColour(font.VtColor) + "]";
}

QByteArray Integer(int value) {
    return QByteArray::number(value);
}

struct GeometryText {
    const Scene& scene;

    [[nodiscard]] QByteArray Points(PointRun run) const {
        QByteArray text = "\"points\": [";
        bool first = true;
        for (const Point point : scene.PointsOf(run)) {
            text += (first ? "" : ", ") + Number(point.x) + ", " + Number(point.y);
            first = false;
        }
        return text + "]";
    }

    QByteArray operator()(const Polyline& line) const {
        return "\"kind\": \"polyline\", " + Points(line.points);
    }
    QByteArray operator()(const Polygon& polygon) const {
        return "\"kind\": \"polygon\", " + Points(polygon.points);
    }
    QByteArray operator()(const Rectangle& rectangle) const {
        return "\"kind\": \"rectangle\", \"box\": " + BoxText(rectangle.box);
    }
    QByteArray operator()(const Slice& slice) const {
        return "\"kind\": \"slice\", \"box\": " + BoxText(slice.box) +
               ", \"angles\": " + Numbers({slice.startAngle, slice.spanAngle});
    }
    QByteArray operator()(const TextLine& text) const {
        return "\"kind\": \"text\", \"text\": " + Quoted(text.text) + ", \"font\": " + FontText(text.font) +
               ", \"origin\": " + Numbers({text.origin.x, text.origin.y}) +
               ", \"anchor\": " + Integer(static_cast<int>(text.anchor)) +
               ", \"angle\": " + Number(text.angle) +
               ", \"extent\": " + Numbers({text.width, text.ascent, text.descent});
    }
    QByteArray operator()(const MarkerRun& run) const {
        return "\"kind\": \"markers\", \"style\": " + Integer(static_cast<int>(run.style)) +
               ", \"size\": " + Number(run.size) + ", " + Points(run.points);
    }
};

/// What a shape does not have is left out.
QByteArray ShapeText(const Scene& scene, const Shape& shape) {
    const Part& part = shape.part;
    QByteArray text = "{\"part\": [" + Integer(static_cast<int>(part.code)) + ", " + Integer(part.index1) +
                      ", " + Integer(part.index2) + "], \"name\": \"" + PartName(part.code) + "\", " +
                      std::visit(GeometryText{scene}, shape.geometry);
    if (shape.stroke != Stroke{}) {
        text += ", \"stroke\": [" + Integer(static_cast<int>(shape.stroke.style)) + ", " +
                Number(shape.stroke.width) + ", " + QuotedColour(shape.stroke.colour) + "]";
    }
    if (shape.fill != SceneFill{}) {
        text += ", \"fill\": [" + Integer(static_cast<int>(shape.fill.style)) + ", " +
                Integer(shape.fill.index) + ", " + QuotedColour(shape.fill.colour) + ", " +
                QuotedColour(shape.fill.patternColour) + "]";
        if (shape.fill.opacity < 1) text += ", \"opacity\": " + Number(shape.fill.opacity);
    }
    if (shape.clip != NoClip) text += ", \"clip\": " + Integer(shape.clip);
    if (shape.crisp) text += ", \"crisp\": true";
    return text + ", \"bounds\": " + BoxText(shape.bounds) + "}";
}

/// A member that is an array, an entry to a line.
template<class Items, class ToText>
QByteArray Listed(const char* name, const Items& items, ToText toText) {
    QByteArray text = QByteArray("  \"") + name + "\": [";
    bool first = true;
    for (const auto& item : items) {
        text += (first ? "\n    " : ",\n    ") + toText(item);
        first = false;
    }
    return text + (first ? "]" : "\n  ]");
}

} // namespace

QByteArray DumpScene(const Scene& scene) {
    return "{\n  \"size\": " + Numbers({scene.size.width, scene.size.height}) + ",\n" +
           Listed("clips", scene.clips, [](const Box& clip) { return BoxText(clip); }) + ",\n" +
           Listed("warnings", scene.warnings, [](const QString& warning) { return Quoted(warning); }) +
           ",\n" +
           Listed("shapes", scene.shapes, [&](const Shape& shape) { return ShapeText(scene, shape); }) +
           "\n}\n";
}

} // namespace QmChart6
