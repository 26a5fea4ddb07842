#include "chartcontrol/paint/BitmapWriter.h"

#include "base/Units.h"
#include "chartcontrol/paint/PaintScene.h"

#include <QBuffer>
#include <QPainter>

#include <cmath>

namespace QmChart6 {

namespace {

constexpr double GreatestSide = 32'767; // what the painter takes
constexpr double GreatestArea = 256e6;  // pixels, one gigabyte

QByteArray Encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format)) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the picture could not be made a %1").arg(QLatin1String(format)));
    }
    return bytes;
}

} // namespace

QImage ImageOfScene(const Scene& scene, double scale) {
    const double width = std::round(scene.size.width / PointsPerPixel * scale);
    const double height = std::round(scene.size.height / PointsPerPixel * scale);
    if (!(width >= 1 && height >= 1 && width <= GreatestSide && height <= GreatestSide &&
          width * height <= GreatestArea)) {
        throw RuntimeError(
            ErrorNumber::InvalidProcedureCall,
            QStringLiteral("a picture of 1 to 32,767 pixels each way and no more than 256 million expected"));
    }
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    if (image.isNull()) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("no memory for a picture of this size"));
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintScene(scene, painter, scale / PointsPerPixel, PaintTarget::Raster);
    painter.end();
    const int dotsPerMetre = qRound(PixelsPerInch * scale / MillimetresPerInch * 1000);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

QByteArray EncodePng(const QImage& image) {
    return Encoded(image, "PNG");
}

QByteArray EncodeBmp(const QImage& image) {
    return Encoded(image.convertToFormat(QImage::Format_RGB32), "BMP");
}

} // namespace QmChart6
