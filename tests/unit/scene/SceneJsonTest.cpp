#include "support/SceneJson.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "support/Raises.h"

#include <limits>

namespace QmChart6 {

namespace {

Scene SceneOfEveryKind() {
    Scene scene;
    scene.size = {300.12345, 200};
    SceneBuilder builder(scene);
    const Stroke stroke{PenStyle::Dashed, 1.5, {1, 2, 255}};
    const SceneFill hatch{BrushStyle::Hatch, 5, {10, 20, 30}, {40, 50, 60}};
    builder.AddRectangle({PartCode::Chart}, {0, 0, 300, 200}, SolidFill({255, 255, 255}));
    builder.SetClip(Box{10, 10, 290, 190});
    builder.AddPoint({1, 2});
    builder.AddPoint({-0.00001, 1.0 / 3});
    builder.AddPolyline({PartCode::Series, 2, 0}, stroke);
    for (const Point point : {Point{5, 5}, Point{50, 5}, Point{5, 50}}) builder.AddPoint(point);
    builder.AddPolygon({PartCode::DataPoint, 1, 3}, hatch, stroke, true);
    builder.AddSlice({PartCode::DataPoint, 1, 4}, {{20, 20, 80, 60}, 30, -45.5}, hatch);
    builder.SetClip({});
    TextLine text;
    text.text = QStringLiteral("\"q\\ \t\u00e9\u4e2d\U0001F600\x01");
    text.font.Name = QStringLiteral("A B");
    text.font.Style = 3;
    text.origin = {100, 100};
    text.anchor = TextAnchor::End;
    text.angle = -90;
    text.width = 40;
    text.ascent = 8;
    text.descent = 2;
    builder.AddText({PartCode::AxisTitle, 1, 1}, text);
    builder.AddPoint({7, 7});
    builder.AddMarkers({PartCode::Series, 1, 0}, MarkerStyle::Star, 6, SolidFill({9, 9, 9}), stroke);
    builder.Warn(QStringLiteral("a \"sentence\""));
    return scene;
}

} // namespace

TEST(SceneJson, DumpOfReadDumpIsTheSameDumpForEveryKind) {
    const QByteArray dump = DumpScene(SceneOfEveryKind());
    EXPECT_EQ(DumpScene(ReadScene(dump)), dump) << dump.toStdString();
}

TEST(SceneJson, ReadGivesBackWhatWasDumped) {
    const Scene scene = SceneOfEveryKind();
    const Scene read = ReadScene(DumpScene(scene));
    ASSERT_EQ(read.shapes.size(), scene.shapes.size());
    EXPECT_EQ(read.clips, scene.clips);
    EXPECT_EQ(read.warnings, scene.warnings);
    EXPECT_EQ(read.points.size(), scene.points.size());
    for (std::size_t at = 0; at < scene.shapes.size(); ++at) {
        EXPECT_EQ(read.shapes[at].part, scene.shapes[at].part);
        EXPECT_EQ(read.shapes[at].geometry.index(), scene.shapes[at].geometry.index());
        EXPECT_EQ(read.shapes[at].stroke, scene.shapes[at].stroke);
        EXPECT_EQ(read.shapes[at].fill, scene.shapes[at].fill);
        EXPECT_EQ(read.shapes[at].clip, scene.shapes[at].clip);
        EXPECT_EQ(read.shapes[at].crisp, scene.shapes[at].crisp);
    }
    const auto& text = std::get<TextLine>(read.shapes[4].geometry);
    EXPECT_EQ(text.text, std::get<TextLine>(scene.shapes[4].geometry).text);
    EXPECT_EQ(text.font, std::get<TextLine>(scene.shapes[4].geometry).font);
    EXPECT_EQ(text.anchor, TextAnchor::End);
    EXPECT_EQ(std::get<MarkerRun>(read.shapes[5].geometry).style, MarkerStyle::Star);
}

TEST(SceneJson, WritesOneShapeToALineWithThreeDecimalsAndNoMinusZero) {
    const QByteArray dump = DumpScene(SceneOfEveryKind());
    EXPECT_EQ(dump.count("\"kind\""), 6);
    for (const QByteArray& line : dump.split('\n')) EXPECT_LE(line.count("\"kind\""), 1);
    EXPECT_TRUE(dump.contains("\"size\": [300.123, 200]"));
    EXPECT_TRUE(dump.contains("\"points\": [1, 2, 0, 0.333]")) << dump.toStdString();
    EXPECT_TRUE(dump.contains("\"part\": [5, 2, 0], \"name\": \"series\""));
    EXPECT_FALSE(dump.contains("-0,"));
}

TEST(SceneJson, KeepsNumbersThatJsonHasNoWordFor) {
    Scene scene;
    scene.size = {std::numeric_limits<double>::quiet_NaN(), 1e300};
    scene.warnings += QString(QChar(0xD800));
    const QByteArray dump = DumpScene(scene);
    EXPECT_EQ(DumpScene(ReadScene(dump)), dump) << dump.toStdString();
}

TEST(SceneJson, RefusesWhatIsNoDumpWithThePlace) {
    EXPECT_RAISES(13, ReadScene(""));
    EXPECT_RAISES(13, ReadScene("[]"));
    EXPECT_RAISES(13, ReadScene(R"({"size": [1, 2], "clips": [], "warnings": []})"));
    QByteArray dump = DumpScene(SceneOfEveryKind());
    for (const auto& [good, bad] : {std::pair<QByteArray, QByteArray>{"\"clip\": 0", "\"clip\": 1"},
                                    {"[5, 2, 0]", "[13, 2, 0]"},
                                    {"\"angles\": [30, -45.5]", "\"angles\": [30]"},
                                    {"#0102ff", "#0102fg"},
                                    {"\"kind\": \"slice\"", "\"kind\": \"pie\""},
                                    {"[1, 2, 0, 0.333]", "[1, 2, 0]"},
                                    {"\"size\": 6", "\"size\": \"6\""}}) {
        ASSERT_TRUE(dump.contains(good)) << good.toStdString();
        EXPECT_RAISES(13, ReadScene(QByteArray(dump).replace(good, bad)));
    }
    try {
        ReadScene(dump.replace("\"kind\": \"slice\"", "\"kind\": \"pie\""));
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("shape 4 kind"))) << error.what();
    }
}

} // namespace QmChart6
