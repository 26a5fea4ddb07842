#include "support/SceneJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

[[noreturn]] void Refuse(const QString& place, const QString& expected) {
    throw RuntimeError(ErrorNumber::TypeMismatch,
                       QStringLiteral("scene dump, %1: %2 expected").arg(place, expected));
}

/// One object of the dump; every getter refuses what has not the shape that it names.
class Reader {
public:
    Reader(const QJsonObject& object, QString place) : object_(object), place_(std::move(place)) {}

    [[nodiscard]] bool Has(const char* key) const { return object_.contains(QLatin1String(key)); }
    [[nodiscard]] QJsonArray Array(const char* key) const {
        const QJsonValue value = object_.value(QLatin1String(key));
        if (!value.isArray()) Refuse(At(key), QStringLiteral("an array"));
        return value.toArray();
    }
    [[nodiscard]] QJsonArray Array(const char* key, int count) const {
        const QJsonArray array = Array(key);
        if (array.size() != count) Refuse(At(key), QStringLiteral("an array of %1").arg(count));
        return array;
    }
    [[nodiscard]] double Number(const char* key) const {
        return ToNumber(object_.value(QLatin1String(key)), key);
    }
    [[nodiscard]] double ToNumber(const QJsonValue& value, const char* key) const {
        if (value.isNull()) return std::numeric_limits<double>::quiet_NaN();
        if (!value.isDouble()) Refuse(At(key), QStringLiteral("a number"));
        return value.toDouble();
    }
    [[nodiscard]] int ToInteger(const QJsonValue& value, const char* key, int least, int greatest) const {
        const double number = value.isDouble() ? value.toDouble() : 0.5;
        if (number != std::floor(number) || number < least || number > greatest) {
            Refuse(At(key), QStringLiteral("a whole number from %1 to %2").arg(least).arg(greatest));
        }
        return static_cast<int>(number);
    }
    [[nodiscard]] int Integer(const char* key, int least, int greatest) const {
        return ToInteger(object_.value(QLatin1String(key)), key, least, greatest);
    }
    [[nodiscard]] QString ToText(const QJsonValue& value, const char* key) const {
        if (!value.isString()) Refuse(At(key), QStringLiteral("a text"));
        return value.toString();
    }
    [[nodiscard]] QString Text(const char* key) const {
        return ToText(object_.value(QLatin1String(key)), key);
    }
    [[nodiscard]] Colour ToColour(const QJsonValue& value, const char* key) const {
        const QString text = value.toString();
        bool isHex = false;
        const uint number = text.mid(1).toUInt(&isHex, 16);
        if (text.size() != 7 || text[0] != u'#' || !isHex)
            Refuse(At(key), QStringLiteral("a colour as \"#rrggbb\""));
        return {static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 8),
                static_cast<std::uint8_t>(number)};
    }
    [[nodiscard]] Box ToBox(const QJsonArray& array, const char* key) const {
        if (array.size() != 4) Refuse(At(key), QStringLiteral("an array of 4"));
        return {ToNumber(array[0], key), ToNumber(array[1], key), ToNumber(array[2], key),
                ToNumber(array[3], key)};
    }
    [[nodiscard]] Box BoxOf(const char* key) const { return ToBox(Array(key), key); }
    [[nodiscard]] QString At(const char* key) const { return place_ + QLatin1Char(' ') + QLatin1String(key); }

private:
    QJsonObject object_;
    QString place_;
};

constexpr int Any = std::numeric_limits<int>::max();

PointRun ReadPoints(const Reader& reader, Scene& scene) {
    const QJsonArray numbers = reader.Array("points");
    if (numbers.size() % 2 != 0) Refuse(reader.At("points"), QStringLiteral("an even count of numbers"));
    const PointRun run{scene.points.size(), static_cast<std::size_t>(numbers.size() / 2)};
    for (qsizetype at = 0; at < numbers.size(); at += 2) {
        scene.points.push_back(
            {reader.ToNumber(numbers[at], "points"), reader.ToNumber(numbers[at + 1], "points")});
    }
    return run;
}

Font ReadFont(const Reader& reader) {
    const QJsonArray font = reader.Array("font", 5);
    return {reader.ToText(font[0], "font"), reader.ToNumber(font[1], "font"),
            reader.ToInteger(font[2], "font", 0, Any), reader.ToInteger(font[3], "font", 0, Any),
            reader.ToColour(font[4], "font")};
}

TextLine ReadText(const Reader& reader) {
    const QJsonArray origin = reader.Array("origin", 2);
    const QJsonArray extent = reader.Array("extent", 3);
    TextLine text;
    text.text = reader.Text("text");
    text.font = ReadFont(reader);
    text.origin = {reader.ToNumber(origin[0], "origin"), reader.ToNumber(origin[1], "origin")};
    text.anchor = static_cast<TextAnchor>(reader.Integer("anchor", 0, 2));
    text.angle = reader.Number("angle");
    text.width = reader.ToNumber(extent[0], "extent");
    text.ascent = reader.ToNumber(extent[1], "extent");
    text.descent = reader.ToNumber(extent[2], "extent");
    return text;
}

Geometry ReadGeometry(const Reader& reader, Scene& scene) {
    const QString kind = reader.Text("kind");
    if (kind == QLatin1String("polyline")) return Polyline{ReadPoints(reader, scene)};
    if (kind == QLatin1String("polygon")) return Polygon{ReadPoints(reader, scene)};
    if (kind == QLatin1String("rectangle")) return Rectangle{reader.BoxOf("box")};
    if (kind == QLatin1String("slice")) {
        const QJsonArray angles = reader.Array("angles", 2);
        return Slice{reader.BoxOf("box"), reader.ToNumber(angles[0], "angles"),
                     reader.ToNumber(angles[1], "angles")};
    }
    if (kind == QLatin1String("text")) return ReadText(reader);
    if (kind == QLatin1String("markers")) {
        const auto style = static_cast<MarkerStyle>(reader.Integer("style", 0, 8));
        const double size = reader.Number("size");
        return MarkerRun{ReadPoints(reader, scene), style, size};
    }
    Refuse(reader.At("kind"), QStringLiteral("a kind of shape"));
}

Shape ReadShape(const Reader& reader, Scene& scene) {
    Shape shape;
    const QJsonArray part = reader.Array("part", 3);
    shape.part = {
        static_cast<PartCode>(reader.ToInteger(part[0], "part", 0, static_cast<int>(PartCode::Statistics))),
        reader.ToInteger(part[1], "part", -Any, Any), reader.ToInteger(part[2], "part", -Any, Any)};
    shape.geometry = ReadGeometry(reader, scene);
    if (reader.Has("stroke")) {
        const QJsonArray stroke = reader.Array("stroke", 3);
        shape.stroke = {static_cast<PenStyle>(
                            reader.ToInteger(stroke[0], "stroke", 0, static_cast<int>(PenStyle::DashDotted))),
                        reader.ToNumber(stroke[1], "stroke"), reader.ToColour(stroke[2], "stroke")};
    }
    if (reader.Has("fill")) {
        const QJsonArray fill = reader.Array("fill", 4);
        shape.fill = {static_cast<BrushStyle>(reader.ToInteger(fill[0], "fill", 0, 3)),
                      reader.ToInteger(fill[1], "fill", -Any, Any), reader.ToColour(fill[2], "fill"),
                      reader.ToColour(fill[3], "fill"), reader.Has("opacity") ? reader.Number("opacity") : 1};
    }
    if (reader.Has("clip")) shape.clip = reader.Integer("clip", 0, static_cast<int>(scene.clips.size()) - 1);
    shape.crisp = reader.Has("crisp");
    shape.bounds = reader.BoxOf("bounds");
    return shape;
}

} // namespace

Scene ReadScene(const QByteArray& json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        Refuse(QStringLiteral("byte %1").arg(error.offset), QStringLiteral("JSON"));
    const Reader reader(document.object(), QStringLiteral("top"));
    Scene scene;
    const QJsonArray size = reader.Array("size", 2);
    scene.size = {reader.ToNumber(size[0], "size"), reader.ToNumber(size[1], "size")};
    for (const QJsonValue clip : reader.Array("clips"))
        scene.clips.push_back(reader.ToBox(clip.toArray(), "clips"));
    for (const QJsonValue warning : reader.Array("warnings"))
        scene.warnings += reader.ToText(warning, "warnings");
    for (const QJsonValue shape : reader.Array("shapes")) {
        const QString place = QStringLiteral("shape %1").arg(scene.shapes.size() + 1);
        if (!shape.isObject()) Refuse(place, QStringLiteral("an object"));
        scene.shapes.push_back(ReadShape(Reader(shape.toObject(), place), scene));
    }
    return scene;
}

} // namespace QmChart6
