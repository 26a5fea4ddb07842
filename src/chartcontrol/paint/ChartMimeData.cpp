#include "chartcontrol/paint/ChartMimeData.h"

#include "chartcontrol/paint/BitmapWriter.h"
#include "chartcontrol/paint/TableText.h"

#include <QImage>

#include <array>
#include <optional>

namespace QmChart6 {

namespace {

struct Flavour {
    const char* mimeType;
    PictureFormat format;
};

/// The best first: programs take the first that they know.
constexpr std::array<Flavour, 6> Flavours{{{"image/svg+xml", PictureFormat::Svg},
                                           {"image/x-emf", PictureFormat::Emf},
                                           {"application/pdf", PictureFormat::Pdf},
                                           {"image/png", PictureFormat::Png},
                                           {"image/bmp", PictureFormat::Bmp},
                                           {"image/emf", PictureFormat::Emf}}};
const QString PlainText = QStringLiteral("text/plain");
/// What toolkit programs of our own kind ask for when they want any picture.
const QString AnyImage = QStringLiteral("application/x-qt-image");

std::optional<PictureFormat> FormatOf(const QString& mimeType) {
    for (const Flavour& flavour : Flavours)
        if (mimeType == QLatin1String(flavour.mimeType)) return flavour.format;
    return {};
}

} // namespace

ChartMimeData::ChartMimeData(Picture picture) : picture_(std::move(picture)) {}

bool ChartMimeData::hasFormat(const QString& mimeType) const {
    return mimeType == PlainText || mimeType == AnyImage || FormatOf(mimeType).has_value();
}

QStringList ChartMimeData::formats() const {
    QStringList all;
    for (const Flavour& flavour : Flavours) all += QString::fromLatin1(flavour.mimeType);
    return all << PlainText;
}

QVariant ChartMimeData::retrieveData(const QString& mimeType, QMetaType preferredType) const {
    if (mimeType == PlainText) return TableText(picture_.chart);
    if (mimeType == AnyImage) return QImage::fromData(EncodePicture(picture_, PictureFormat::Png));
    if (const auto format = FormatOf(mimeType)) return EncodePicture(picture_, *format);
    return QMimeData::retrieveData(mimeType, preferredType);
}

} // namespace QmChart6
