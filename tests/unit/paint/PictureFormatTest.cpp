#include "chartcontrol/paint/PictureFormat.h"
#include "Gallery.h"

#include "chartcontrol/paint/BitmapWriter.h"
#include "chartcontrol/paint/ChartMimeData.h"
#include "chartcontrol/paint/EmfWriter.h"
#include "chartcontrol/paint/SvgWriter.h"
#include "chartcontrol/paint/TableText.h"
#include "chartcontrol/paint/WriteWhole.h"
#include "support/Raises.h"
#include "support/SampleCharts.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstring>

#include <unistd.h>

namespace QmChart6 {
namespace {

Picture PictureOf(const char* sample) {
    const Samples::Sample& found = Samples::Named(sample);
    return {found.make(), found.width, found.height};
}

std::uint32_t U32(const QByteArray& bytes, qsizetype at) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.constData() + at, 4);
    return value;
}

TEST(PictureFormat, FollowsTheExtension) {
    EXPECT_EQ(FormatOfFileName(QStringLiteral("a.bmp")), PictureFormat::Bmp);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("/x/A.PNG")), PictureFormat::Png);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("a.b.svg")), PictureFormat::Svg);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("a.Pdf")), PictureFormat::Pdf);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("a.emf")), PictureFormat::Emf);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("a.wmf")), PictureFormat::Emf);
    EXPECT_EQ(FormatOfFileName(QStringLiteral("picture")), PictureFormat::Emf);
}

TEST(PictureFormat, TheScaleIsInTheName) {
    EXPECT_EQ(ScaleOfFileName(QStringLiteral("a.png")), 1);
    EXPECT_EQ(ScaleOfFileName(QStringLiteral("/x/a@2x.png")), 2);
    EXPECT_EQ(ScaleOfFileName(QStringLiteral("a@3X.bmp")), 3);
    EXPECT_EQ(ScaleOfFileName(QStringLiteral("a@0x.png")), 1);
    EXPECT_EQ(ScaleOfFileName(QStringLiteral("@x.png")), 1);
}

TEST(PictureFormat, APictureWithoutRoomIsRefused) {
    Picture picture = PictureOf("bar-4-series");
    picture.width = 0;
    EXPECT_RAISES(5, EncodePicture(picture, PictureFormat::Png));
    picture.width = 40000;
    EXPECT_RAISES(5, EncodePicture(picture, PictureFormat::Bmp));
}

TEST(Bmp, Has24BitsToThePixel) {
    const QByteArray bytes = EncodePicture(PictureOf("bar-4-series"), PictureFormat::Bmp);
    EXPECT_TRUE(bytes.startsWith("BM"));
    EXPECT_EQ(U32(bytes, 2), static_cast<std::uint32_t>(bytes.size()));
    EXPECT_EQ(U32(bytes, 18), 640U);
    EXPECT_EQ(U32(bytes, 22), 420U);
    EXPECT_EQ(static_cast<unsigned char>(bytes[28]), 24);
    EXPECT_EQ(U32(bytes, 30), 0U);
    const QImage read = QImage::fromData(bytes, "BMP");
    const QImage png = QImage::fromData(EncodePicture(PictureOf("bar-4-series"), PictureFormat::Png));
    EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), png.convertToFormat(QImage::Format_RGB32));
}

TEST(Png, AtTwiceTheScaleHasTwiceThePixels) {
    const QImage image = QImage::fromData(EncodePicture(PictureOf("bar-4-series"), PictureFormat::Png, 2));
    EXPECT_EQ(image.size(), QSize(1280, 840));
    EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, 192, 1);
}

TEST(Svg, IsWellFormedForEverySampleAndHoldsItsTexts) {
    for (const Samples::Sample& sample : Samples::All()) {
        const QByteArray svg =
            EncodePicture({sample.make(), sample.width, sample.height}, PictureFormat::Svg);
        QXmlStreamReader reader(svg);
        QString texts;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == QLatin1String("text"))
                texts += reader.readElementText();
        }
        EXPECT_FALSE(reader.hasError()) << sample.name << ": " << reader.errorString().toStdString();
        EXPECT_FALSE(svg.contains("nan") || svg.contains("inf\"")) << sample.name;
        if (sample.name == "bar-4-series") {
            EXPECT_TRUE(texts.contains(QStringLiteral("Sales by Month and Region")));
        }
    }
}

TEST(Svg, HoldsEverythingThatThereIsToDraw) {
    const Scene scene = GalleryScene();
    const QByteArray svg = EncodeSvg(scene, {});
    QXmlStreamReader reader(svg);
    qsizetype texts = 0;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("text"))
            ++texts;
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    qsizetype lines = 0;
    for (const Shape& shape : scene.shapes) lines += std::holds_alternative<TextLine>(shape.geometry) ? 1 : 0;
    EXPECT_GT(lines, 0);
    EXPECT_EQ(texts, lines);
}

TEST(Svg, EscapesWhatXmlGivesAMeaningTo) {
    Picture picture = PictureOf("bar-1-series");
    picture.chart.Title.Text = QStringLiteral("a < b & \"c\" > 'd' \x02 \u20ac \U0001F600");
    picture.chart.Title.VtFont.Name = QStringLiteral("A\"'\\&<");
    QXmlStreamReader reader(EncodePicture(picture, PictureFormat::Svg));
    QString title;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("title"))
            title = reader.readElementText();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(title, QStringLiteral("a < b & \"c\" > 'd'  \u20ac \U0001F600"));
}

TEST(Svg, DrawsTheSamePictureAsTheRaster) {
    if (QStandardPaths::findExecutable(QStringLiteral("rsvg-convert")).isEmpty())
        GTEST_SKIP() << "no rsvg-convert";
    const QTemporaryDir folder;
    for (const char* name : {"bar-hatches", "bar-patterns", "bar-negative-missing", "line-markers",
                             "pie-bent-lines", "bar-3d", "area-stacked"}) {
        const Picture picture = PictureOf(name);
        const QString svg = folder.filePath(QStringLiteral("a.svg"));
        const QString png = folder.filePath(QStringLiteral("a.png"));
        SavePicture(picture, svg);
        ASSERT_EQ(QProcess::execute(QStringLiteral("rsvg-convert"), {svg, QStringLiteral("-o"), png}), 0);
        QImage drawn(png);
        QImage white(drawn.size(), QImage::Format_RGB32);
        white.fill(Qt::white);
        const QImage raster = QImage::fromData(EncodePicture(picture, PictureFormat::Png));
        ASSERT_EQ(drawn.size(), raster.size());
        drawn = drawn.convertToFormat(QImage::Format_RGB32);
        double sum = 0;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                sum += std::abs(qGray(drawn.pixel(x, y)) - qGray(raster.pixel(x, y)));
        EXPECT_LT(sum / (drawn.width() * drawn.height()), 8) << name;
    }
}

TEST(Emf, RecordsAreSoundForEverySample) {
    for (const Samples::Sample& sample : Samples::All()) {
        const QByteArray bytes =
            EncodePicture({sample.make(), sample.width, sample.height}, PictureFormat::Emf);
        ASSERT_EQ(U32(bytes, 0), 1U);
        EXPECT_EQ(U32(bytes, 40), 0x464d4520U);
        EXPECT_EQ(U32(bytes, 48), static_cast<std::uint32_t>(bytes.size()));
        std::uint32_t records = 0;
        std::uint32_t saved = 0;
        std::uint32_t last = 0;
        for (qsizetype at = 0; at < bytes.size();) {
            last = U32(bytes, at);
            const std::uint32_t size = U32(bytes, at + 4);
            ASSERT_GE(size, 8U) << sample.name;
            ASSERT_EQ(size % 4, 0U) << sample.name;
            saved += last == 33 ? 1U : 0U;
            saved -= last == 34 ? 1U : 0U;
            ++records;
            at += size;
            ASSERT_LE(at, bytes.size()) << sample.name;
        }
        EXPECT_EQ(last, 14U);
        EXPECT_EQ(saved, 0U);
        EXPECT_EQ(records, U32(bytes, 52));
        EXPECT_EQ(U32(bytes, 16), static_cast<std::uint32_t>(sample.width - 1));
        EXPECT_NEAR(U32(bytes, 32), sample.width * 2540 / 96.0, 1);
    }
}

TEST(Emf, ClipsSurvive) {
    Picture picture = PictureOf("bar-1-series");
    picture.chart.Plot.Axis(AxisId::Y).ValueScale = {false, 0, 40, 4};
    const QByteArray bytes = EncodePicture(picture, PictureFormat::Emf);
    bool clipped = false;
    for (qsizetype at = 0; at < bytes.size(); at += U32(bytes, at + 4))
        clipped = clipped || U32(bytes, at) == 30;
    EXPECT_TRUE(clipped);
    EXPECT_TRUE(EncodePicture(picture, PictureFormat::Svg).contains("clip-path"));
}

TEST(Pdf, KeepsTextAsText) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()) GTEST_SKIP() << "no pdftotext";
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.pdf"));
    SavePicture(PictureOf("bar-4-series"), name);
    QProcess process;
    process.start(QStringLiteral("pdftotext"), {name, QStringLiteral("-")});
    ASSERT_TRUE(process.waitForFinished());
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    EXPECT_TRUE(text.contains(QStringLiteral("Sales by Month and Region")));
    EXPECT_TRUE(text.contains(QStringLiteral("North")));
}

TEST(WriteWhole, ReplacesAFile) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.bin"));
    WriteWhole(name, "one");
    WriteWhole(name, "two");
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("two"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(WriteWhole, AMissingFolderIsPathNotFound) {
    const QTemporaryDir folder;
    EXPECT_RAISES(76, WriteWhole(folder.filePath(QStringLiteral("no/a.bin")), "x"));
}

TEST(WriteWhole, AFolderIsNoFile) {
    const QTemporaryDir folder;
    EXPECT_RAISES(75, WriteWhole(folder.path(), "x"));
}

TEST(WriteWhole, WithoutRightsIsPermissionDenied) {
    if (geteuid() == 0) GTEST_SKIP() << "the super-user may write anywhere";
    const QTemporaryDir folder;
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_RAISES(70, WriteWhole(folder.filePath(QStringLiteral("a.bin")), "x"));
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(WriteWhole, SystemErrorsHaveTheirNumbers) {
    EXPECT_EQ(NumberOfFileError(ENOSPC), ErrorNumber::DiskFull);
    EXPECT_EQ(NumberOfFileError(EROFS), ErrorNumber::PermissionDenied);
    EXPECT_EQ(NumberOfFileError(ENOENT), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberOfFileError(EIO), ErrorNumber::PathFileAccess);
}

TEST(TableText, IsTabSeparatedWithMissingValuesEmpty) {
    Chart chart = Samples::ChartOf(2, 2, [](int row, int column) {
        return row == 2 && column == 1 ? Samples::Missing() : row + column / 2.0;
    });
    chart.DataGrid.SetRowLabel(1, QStringLiteral("a \"b\"\tc"));
    EXPECT_EQ(TableText(chart),
              QStringLiteral("\tSeries 1\tSeries 2\n\"a \"\"b\"\"\tc\"\t1.5\t2\nRow 2\t\t3\n"));
}

TEST(Clipboard, OffersEveryFlavourAndMakesEachFromTheChartAsItWas) {
    Picture picture = PictureOf("bar-1-series");
    const ChartMimeData data(picture);
    picture.chart.Title.Text = QStringLiteral("changed later");
    for (const char* type : {"image/svg+xml", "image/png", "image/bmp", "image/x-emf", "application/pdf"}) {
        EXPECT_TRUE(data.formats().contains(QLatin1String(type)));
        EXPECT_FALSE(data.data(QLatin1String(type)).isEmpty()) << type;
    }
    EXPECT_TRUE(data.data(QStringLiteral("image/svg+xml")).contains("Sales by Month"));
    EXPECT_TRUE(data.text().startsWith(QStringLiteral("\tNorth\nJanuary\t")));
    EXPECT_TRUE(data.hasImage());
    EXPECT_EQ(qvariant_cast<QImage>(data.imageData()).size(), QSize(640, 420));
}

} // namespace
} // namespace QmChart6
