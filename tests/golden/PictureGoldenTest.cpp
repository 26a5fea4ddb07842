#include "PictureComparison.h"

#include "chartcontrol/paint/PictureFormat.h"
#include "support/SampleCharts.h"

#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QImage>

#include <gtest/gtest.h>

#include <cstdlib>

// A few charts as pictures, drawn with Liberation Sans. Small on purpose: what a scene golden can tell is not
// told here. QMCHART6_REWRITE_GOLDENS=1 writes them anew; tools/show-goldens shows old, new and difference
// side by side.

namespace QmChart6 {
namespace {

/// Glyphs differ a little between versions of the font renderer; a line or a colour that is wrong differs by
/// far more.
constexpr Tolerance PictureTolerance{.meanDifference = 1.5, .channelDifference = 64, .pixelShare = 0.02};

class PictureGolden : public testing::TestWithParam<const char*> {};

TEST_P(PictureGolden, LooksAsBefore) {
    const Samples::Sample& sample = Samples::Named(GetParam());
    ASSERT_EQ(QFontInfo(QFont(QStringLiteral("Arial"))).family(), QStringLiteral("Liberation Sans"))
        << "the pictures were drawn with this font; install fonts-liberation";
    QImage now;
    ASSERT_TRUE(now.loadFromData(EncodePicture({sample.make(), 272, 190}, PictureFormat::Png)));
    const QString name = QString::fromLatin1(GetParam());
    const QString path = QStringLiteral(QMCHART6_SOURCE_DIR "/tests/golden/pictures/%1.png").arg(name);
    if (std::getenv("QMCHART6_REWRITE_GOLDENS") != nullptr) {
        ASSERT_TRUE(now.convertToFormat(QImage::Format_RGB32).save(path));
        GTEST_SKIP() << "written anew";
    }
    const QImage before(path);
    ASSERT_FALSE(before.isNull()) << "there is no golden of that name yet";
    const Comparison comparison = Compare(before, now, PictureTolerance);
    if (!comparison.same) {
        const QString panel = QDir::current().filePath(name + QStringLiteral(".difference.png"));
        EXPECT_TRUE(SideBySide(before, now).save(panel));
        ADD_FAILURE() << comparison.text.toStdString()
                      << "; old, new and difference: " << panel.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, PictureGolden,
                         testing::Values("bar-framed", "bar-negative-missing", "bar-patterns", "line-markers",
                                         "line-dense", "area-3-series", "combination-two-axes", "pie-one",
                                         "xy-pairs"),
                         [](const auto& golden) {
                             std::string name = golden.param;
                             for (char& character : name)
                                 if (character == '-') character = '_';
                             return name;
                         });

TEST(PictureComparison, FindsAMissingLine) {
    QImage one(100, 100, QImage::Format_RGB32);
    one.fill(Qt::white);
    QImage other = one;
    for (int x = 0; x < 100; ++x)
        for (int y = 40; y < 43; ++y) other.setPixel(x, y, qRgb(30, 130, 245));
    EXPECT_TRUE(Compare(one, one, PictureTolerance).same);
    EXPECT_FALSE(Compare(one, other, PictureTolerance).same);
    EXPECT_FALSE(Compare(one, one.copy(0, 0, 99, 100), PictureTolerance).same);
}

} // namespace
} // namespace QmChart6
