#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

constexpr Colour Blue{30, 130, 245};

QImage Paint(const Scene& scene, double scale) {
    QImage image(static_cast<int>(std::ceil(scene.size.width * scale)),
                 static_cast<int>(std::ceil(scene.size.height * scale)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintScene(scene, painter, scale, PaintTarget::Raster);
    return image;
}

bool IsPure(QRgb pixel) {
    return pixel == qRgb(255, 255, 255) || pixel == qRgb(Blue.Red, Blue.Green, Blue.Blue);
}

class Crispness : public testing::TestWithParam<double> {};

TEST_P(Crispness, RectanglesHaveNoHalfColouredEdges) {
    Scene scene{{60, 60}, {}, {}, {}, {}};
    SceneBuilder(scene).AddRectangle({PartCode::Series, 1}, {10.3, 7.7, 31.9, 44.4}, SolidFill(Blue));
    const QImage image = Paint(scene, GetParam());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ASSERT_TRUE(IsPure(image.pixel(x, y))) << x << ' ' << y;
}

TEST_P(Crispness, GridLinesAreWholePixels) {
    Scene scene{{60, 60}, {}, {}, {}, {}};
    SceneBuilder builder(scene);
    const Stroke stroke{PenStyle::Solid, 0.75, Blue};
    builder.AddLine({PartCode::Axis, 1}, {3, 20.2}, {57, 20.2}, stroke);
    builder.AddLine({PartCode::Axis, 0}, {33.4, 3}, {33.4, 57}, stroke);
    const QImage image = Paint(scene, GetParam());
    int coloured = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_TRUE(IsPure(image.pixel(x, y))) << x << ' ' << y;
            coloured += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
        }
    EXPECT_GT(coloured, 50);
}

INSTANTIATE_TEST_SUITE_P(Scales, Crispness, testing::Values(1.0, 1.25, 4.0 / 3, 1.5, 2.0, 8.0 / 3));

TEST(Raster, ABarThinnerThanAPixelIsSeen) {
    Scene scene{{20, 20}, {}, {}, {}, {}};
    SceneBuilder(scene).AddRectangle({PartCode::Series, 1}, {10, 5, 10.1, 15}, SolidFill(Blue));
    const QImage image = Paint(scene, 1);
    int coloured = 0;
    for (int x = 0; x < 20; ++x) coloured += image.pixel(x, 10) != qRgb(255, 255, 255) ? 1 : 0;
    EXPECT_EQ(coloured, 1);
}

TEST(Raster, AClipHoldsBackWhatLiesOutside) {
    Scene scene{{20, 20}, {}, {}, {}, {}};
    SceneBuilder builder(scene);
    builder.SetClip(Box{0, 0, 10, 20});
    builder.AddRectangle({PartCode::Series, 1}, {5, 5, 15, 15}, SolidFill(Blue));
    const QImage image = Paint(scene, 1);
    EXPECT_NE(image.pixel(7, 10), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(12, 10), qRgb(255, 255, 255));
}

TEST(Raster, AWideLongLineIsDrawnWhole) {
    Scene scene{{400, 40}, {}, {}, {}, {}};
    SceneBuilder builder(scene);
    for (int i = 0; i < 390; ++i) builder.AddPoint({i + 5.0, 20.0});
    builder.AddPolyline({PartCode::Series, 1}, {PenStyle::Solid, 2, Blue});
    const QImage image = Paint(scene, 1);
    for (int x = 10; x < 385; ++x) ASSERT_EQ(image.pixel(x, 20), qRgb(Blue.Red, Blue.Green, Blue.Blue)) << x;
}

TEST(TextMeasurer, WidthsGrowWithTheSize) {
    const QtTextMeasurer measurer;
    Font small;
    Font large;
    large.Size = 3 * small.Size;
    const QString text = QStringLiteral("Quarterly");
    EXPECT_NEAR(measurer.Measure(text, large).width, 3 * measurer.Measure(text, small).width, 1e-6);
    EXPECT_EQ(measurer.Measure({}, small).width, 0);
}

TEST(TextMeasurer, AgreesWithWhatIsDrawn) {
    const QtTextMeasurer measurer;
    Font font;
    font.Size = 20;
    const QString text = QStringLiteral("HHHHHHHH");
    const TextExtent extent = measurer.Measure(text, font);
    Scene scene{{300, 60}, {}, {}, {}, {}};
    SceneBuilder(scene).AddText(
        {PartCode::Title},
        {text, font, {20, 40}, TextAnchor::Start, 0, extent.width, extent.ascent, extent.descent});
    const QImage image = Paint(scene, 2);
    int last = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (qGray(image.pixel(x, y)) < 128) last = x;
    EXPECT_NEAR(last / 2.0, 20 + extent.width, 3);
}

} // namespace
} // namespace QmChart6
