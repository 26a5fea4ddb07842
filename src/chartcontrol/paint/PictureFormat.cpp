#include "chartcontrol/paint/PictureFormat.h"

#include "base/Units.h"
#include "chartcontrol/paint/BitmapWriter.h"
#include "chartcontrol/paint/EmfWriter.h"
#include "chartcontrol/paint/PdfWriter.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/paint/SvgWriter.h"
#include "chartcontrol/paint/WriteWhole.h"

#include <QFileInfo>

#include <array>

namespace QmChart6 {

namespace {

/// Vectors show large data as the screen does at its usual resolution: the same picture in every format.
constexpr double VectorPixelsPerPoint = 1 / PointsPerPixel;

/// What a picture is written from.
struct Drawn {
    const Scene& scene;
    const TextMeasurer& measurer;
    const QString& title;
    double scale; ///< device pixels to a logical pixel
};

/// A format: the extension that stands for it, whether it is made of pixels, and its writer.
struct FormatRow {
    PictureFormat format;
    const char* extension;
    bool isBitmap;
    QByteArray (*encode)(const Drawn& drawn);
};

constexpr std::array Formats{
    FormatRow{PictureFormat::Bmp, "bmp", true,
              [](const Drawn& drawn) { return EncodeBmp(ImageOfScene(drawn.scene, drawn.scale)); }},
    FormatRow{PictureFormat::Png, "png", true,
              [](const Drawn& drawn) { return EncodePng(ImageOfScene(drawn.scene, drawn.scale)); }},
    FormatRow{PictureFormat::Svg, "svg", false,
              [](const Drawn& drawn) { return EncodeSvg(drawn.scene, drawn.title); }},
    FormatRow{PictureFormat::Pdf, "pdf", false,
              [](const Drawn& drawn) { return EncodePdf(drawn.scene, drawn.title); }},
    FormatRow{PictureFormat::Emf, "emf", false,
              [](const Drawn& drawn) { return EncodeEmf(drawn.scene, drawn.measurer); }},
};

/// The row of a format: they stand in the order of their numbers.
constexpr const FormatRow& RowOf(PictureFormat format) {
    return Formats[static_cast<std::size_t>(format)];
}

} // namespace

PictureFormat FormatOfFileName(const QString& fileName) {
    const QString extension = QFileInfo(fileName).suffix().toLower();
    for (const FormatRow& row : Formats)
        if (extension == QLatin1String(row.extension)) return row.format;
    return PictureFormat::Emf;
}

QStringList PictureExtensions() {
    QStringList extensions;
    for (const FormatRow& row : Formats) extensions.append(QLatin1String(row.extension));
    return extensions;
}

int ScaleOfFileName(const QString& fileName) {
    const QString name = QFileInfo(fileName).completeBaseName();
    const qsizetype length = name.size();
    if (length < 3 || name[length - 3] != QLatin1Char('@') || name[length - 1].toLower() != QLatin1Char('x'))
        return 1;
    const int scale = name[length - 2].digitValue();
    return scale >= 1 ? scale : 1;
}

QByteArray EncodePicture(const Picture& picture, PictureFormat format, int scale) {
    if (picture.width < 1 || picture.height < 1)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("a picture is at least 1 by 1, not %1 by %2")
                               .arg(picture.width)
                               .arg(picture.height));
    const FormatRow& row = RowOf(format);
    const QtTextMeasurer measurer;
    const double pointsPerPixel = PointsPerInch / picture.pixelsPerInch;
    const double deviceScale = scale * picture.pixelsPerInch / PixelsPerInch;
    const LaidOutChart laidOut = LayOut(picture.chart,
                                        {{picture.width * pointsPerPixel, picture.height * pointsPerPixel},
                                         row.isBitmap ? deviceScale / PointsPerPixel : VectorPixelsPerPoint},
                                        measurer);
    return row.encode({laidOut.scene, measurer, picture.chart.Title.Text, deviceScale});
}

void SavePicture(const Picture& picture, const QString& fileName) {
    WriteWhole(fileName, EncodePicture(picture, FormatOfFileName(fileName), ScaleOfFileName(fileName)));
}

} // namespace QmChart6
