#include "chartcontrol/paint/PictureFormat.h"
#include "support/SampleCharts.h"

#include <QFontDatabase>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

/// Pixels that are neither grey nor of the chart's only series.
int ColouredPixels(const QImage& image) {
    int coloured = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) coloured += QColor(image.pixel(x, y)).hsvSaturation() > 60;
    return coloured;
}

TEST(PictureLetters, StandInAPdfAsInPixels) {
    ASSERT_TRUE(QFontDatabase::hasFamily(QStringLiteral("Noto Color Emoji")));
    Chart chart = Samples::ChartOf(1, 1, [](int, int) { return Samples::Missing(); });
    chart.Title.Text = QString::fromUtf8("\xF0\x9F\x87\xA9\xF0\x9F\x87\xAA \xF0\x9F\x8D\x8E Fruit");
    chart.Title.VtFont.Size = 24;
    const Picture picture{chart, 400, 300};
    const QTemporaryDir folder;
    const QString base = folder.filePath(QStringLiteral("emoji"));
    SavePicture(picture, base + QStringLiteral(".pdf"));
    ASSERT_EQ(QProcess::execute(QStringLiteral("pdftoppm"),
                                {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                                 QStringLiteral("96"), base + QStringLiteral(".pdf"), base}),
              0);
    const int inPixels = ColouredPixels(QImage::fromData(EncodePicture(picture, PictureFormat::Png)));
    const int inPdf = ColouredPixels(QImage(base + QStringLiteral(".png")));
    EXPECT_GT(inPixels, 100);
    EXPECT_NEAR(inPdf, inPixels, 0.35 * inPixels);
}

} // namespace
} // namespace QmChart6
