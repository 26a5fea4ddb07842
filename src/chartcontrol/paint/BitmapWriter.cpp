#include "chartcontrol/paint/BitmapWriter.h"

#include "base/Twips.h"
#include "chartcontrol/paint/Inches.h"
#include "chartcontrol/paint/PaintScene.h"

#include <QBuffer>
#include <QPainter>

#include <cmath>

namespace QmChart6 {

namespace {

constexpr double GreatestSide = 32'767; // what the painter takes
constexpr double GreatestArea = 256e6;  // pixels, one gigabyte

void Append16(QByteArray& bytes, unsigned value) {
    bytes.append(static_cast<char>(value & 0xFF));
    bytes.append(static_cast<char>(value >> 8 & 0xFF));
}

void Append32(QByteArray& bytes, unsigned value) {
    Append16(bytes, value & 0xFFFF);
    Append16(bytes, value >> 16);
}

} // namespace

QImage ImageOfScene(const Scene& scene, int scale) {
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
    const int dotsPerMetre = qRound(DotsPerInch * scale / MillimetresPerInch * 1000);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

QByteArray EncodePng(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the picture could not be made a PNG"));
    }
    return bytes;
}

QByteArray EncodeBmp(const QImage& image) {
    constexpr unsigned FileHeader = 14;
    constexpr unsigned InfoHeader = 40;
    constexpr int BytesPerPixel = 3;
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    const qsizetype used = static_cast<qsizetype>(rgb.width()) * BytesPerPixel;
    const qsizetype line = (used + 3) / 4 * 4;
    const qsizetype size = FileHeader + InfoHeader + line * rgb.height();
    QByteArray bytes;
    bytes.reserve(size);
    bytes.append("BM");
    Append32(bytes, static_cast<unsigned>(size));
    Append32(bytes, 0);
    Append32(bytes, FileHeader + InfoHeader);
    Append32(bytes, InfoHeader);
    Append32(bytes, static_cast<unsigned>(rgb.width()));
    Append32(bytes, static_cast<unsigned>(rgb.height()));
    Append16(bytes, 1); // planes
    Append16(bytes, BytesPerPixel * 8);
    Append32(bytes, 0); // not compressed
    Append32(bytes, static_cast<unsigned>(line * rgb.height()));
    Append32(bytes, static_cast<unsigned>(image.dotsPerMeterX()));
    Append32(bytes, static_cast<unsigned>(image.dotsPerMeterY()));
    Append32(bytes, 0); // no palette
    Append32(bytes, 0);
    for (int y = rgb.height() - 1; y >= 0; --y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x) {
            bytes.append(static_cast<char>(qBlue(pixels[x])));
            bytes.append(static_cast<char>(qGreen(pixels[x])));
            bytes.append(static_cast<char>(qRed(pixels[x])));
        }
        bytes.append(line - used, '\0');
    }
    return bytes;
}

} // namespace QmChart6
