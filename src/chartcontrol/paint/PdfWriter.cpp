#include "chartcontrol/paint/PdfWriter.h"

#include "chartcontrol/paint/Inches.h"
#include "chartcontrol/paint/PaintScene.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

namespace QmChart6 {

QByteArray EncodePdf(const Scene& scene, const QString& title) {
    constexpr int Resolution = 1200;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    // The page keeps whole points only; up, so that nothing is cut off.
    const QSizeF size(std::ceil(scene.size.width), std::ceil(scene.size.height));
    writer.setPageSize(QPageSize(size, QPageSize::Point, QStringLiteral("Picture"), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(Resolution);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("QmChart6"));
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the picture could not be made a PDF"));
    }
    PaintScene(scene, painter, Resolution / PointsPerInch, PaintTarget::Vector);
    painter.end();
    return bytes;
}

} // namespace QmChart6
