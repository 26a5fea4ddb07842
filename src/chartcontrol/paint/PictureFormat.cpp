#include "chartcontrol/paint/PictureFormat.h"

#include "base/Units.h"
#include "chartcontrol/paint/BitmapWriter.h"
#include "chartcontrol/paint/EmfWriter.h"
#include "chartcontrol/paint/PdfWriter.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/paint/SvgWriter.h"
#include "chartcontrol/paint/WriteWhole.h"

#include <QFileInfo>

namespace QmChart6 {

namespace {

/// Vectors show large data as the screen does at its usual resolution: the same picture in every format.
constexpr double VectorPixelsPerPoint = 1 / PointsPerPixel;

} // namespace

PictureFormat FormatOfFileName(const QString& fileName) {
    const QString extension = QFileInfo(fileName).suffix().toLower();
    if (extension == QLatin1String("bmp")) return PictureFormat::Bmp;
    if (extension == QLatin1String("png")) return PictureFormat::Png;
    if (extension == QLatin1String("svg")) return PictureFormat::Svg;
    if (extension == QLatin1String("pdf")) return PictureFormat::Pdf;
    return PictureFormat::Emf;
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
    const bool bitmap = format == PictureFormat::Bmp || format == PictureFormat::Png;
    const QtTextMeasurer measurer;
    const Scene scene = LayOut(picture.chart,
                               {{picture.width * PointsPerPixel, picture.height * PointsPerPixel},
                                bitmap ? scale / PointsPerPixel : VectorPixelsPerPoint},
                               measurer)
                            .scene;
    switch (format) {
    case PictureFormat::Bmp:
        return EncodeBmp(ImageOfScene(scene, scale));
    case PictureFormat::Png:
        return EncodePng(ImageOfScene(scene, scale));
    case PictureFormat::Svg:
        return EncodeSvg(scene, picture.chart.Title.Text);
    case PictureFormat::Pdf:
        return EncodePdf(scene, picture.chart.Title.Text);
    case PictureFormat::Emf:
        return EncodeEmf(scene, measurer);
    }
    return {};
}

void SavePicture(const Picture& picture, const QString& fileName) {
    WriteWhole(fileName, EncodePicture(picture, FormatOfFileName(fileName), ScaleOfFileName(fileName)));
}

} // namespace QmChart6
