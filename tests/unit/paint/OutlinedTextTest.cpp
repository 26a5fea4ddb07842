#include "chartcontrol/paint/BitmapWriter.h"
#include "chartcontrol/paint/EmfWriter.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/paint/SvgWriter.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "support/EmfPlayer.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

// Letters that are outlined are hollow in every format: the same picture as in pixels.

constexpr Colour Ink{30, 60, 200};

Scene OutlinedScene() {
    Scene scene{{300, 240}, {}, {}, {}, {}};
    SceneBuilder builder(scene);
    const QtTextMeasurer measurer;
    const auto add = [&](const char* words, Point origin, double angle, TextAnchor anchor, int effect) {
        const Font font{QStringLiteral("Arial"), 40, FontBold | FontOutline, effect, Ink};
        const QString text = QLatin1String(words);
        const TextExtent extent = measurer.Measure(text, font);
        builder.AddText({PartCode::Title},
                        {text, font, origin, anchor, angle, extent.width, extent.ascent, extent.descent});
    };
    add("Hollow", {20, 50}, 0, TextAnchor::Start, 0);
    add("Outline", {160, 110}, 0, TextAnchor::Middle, FontUnderline);
    add("Turned", {270, 150}, 30, TextAnchor::End, 0);
    return scene;
}

/// How much ink lies in a picture, in pixels that are inked wholly.
double InkOf(const QImage& image) {
    const int full = 255 - qGray(qRgb(Ink.Red, Ink.Green, Ink.Blue));
    double ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ink += 255 - qGray(image.pixel(x, y));
    return ink / full;
}

/// How much ink of one picture has none in the other near it.
double InkApart(const QImage& one, const QImage& other) {
    double apart = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            apart += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    return apart / (255 - qGray(qRgb(Ink.Red, Ink.Green, Ink.Blue)));
}

TEST(OutlinedText, IsHollowInAMetafileAsInPixels) {
    const Scene scene = OutlinedScene();
    const QImage pixels = ImageOfScene(scene, 2);
    EmfPlayer player(EncodeEmf(scene, QtTextMeasurer()));
    const QImage drawn = player.Play(pixels.size());
    EXPECT_FALSE(player.HasText());
    EXPECT_NEAR(InkOf(drawn) / InkOf(pixels), 1, 0.1);
    EXPECT_LT(InkApart(drawn, pixels), 0.3 * InkOf(pixels));
}

TEST(OutlinedText, IsHollowInSvgAsInPixels) {
    const Scene scene = OutlinedScene();
    const QByteArray svg = EncodeSvg(scene, {});
    EXPECT_EQ(svg.count("<text "), 3);
    EXPECT_EQ(svg.count("fill=\"none\" stroke=\"#1e3cc8\""), 3) << svg.toStdString();
    if (QStandardPaths::findExecutable(QStringLiteral("rsvg-convert")).isEmpty())
        GTEST_SKIP() << "no rsvg-convert";
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.svg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(svg);
    file.close();
    const QString png = folder.filePath(QStringLiteral("a.png"));
    ASSERT_EQ(QProcess::execute(QStringLiteral("rsvg-convert"),
                                {QStringLiteral("--zoom=2"), QStringLiteral("--background-color=white"),
                                 file.fileName(), QStringLiteral("-o"), png}),
              0);
    const QImage drawn(png);
    const QImage pixels = ImageOfScene(scene, 2);
    ASSERT_EQ(drawn.size(), pixels.size());
    EXPECT_NEAR(InkOf(drawn) / InkOf(pixels), 1, 0.1);
    EXPECT_LT(InkApart(drawn, pixels), 0.3 * InkOf(pixels));
}

TEST(OutlinedText, PlainTextStaysText) {
    Scene scene = OutlinedScene();
    for (Shape& shape : scene.shapes) std::get<TextLine>(shape.geometry).font.Style = FontBold;
    EmfPlayer player(EncodeEmf(scene, QtTextMeasurer()));
    player.Play({300, 240});
    EXPECT_TRUE(player.HasText());
    EXPECT_FALSE(EncodeSvg(scene, {}).contains("stroke"));
}

} // namespace
} // namespace QmChart6
