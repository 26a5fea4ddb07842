#include "automation/ViewerList.h"
#include "base/ProcessState.h"
#include "chartcontrol/paint/PictureFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "desktop/Application.h"
#include "qmchart6/Host.h"
#include "qmchart6/RuntimeError.h"
#include "viewer/GraphForm.h"

#include <array>

namespace QmChart6 {

namespace {

constexpr int LargestSide = 16384;
constexpr int LargestRatio = 9;

PictureFormat FormatNamed(const QString& name) {
    static const std::array names{QStringLiteral("bmp"), QStringLiteral("png"), QStringLiteral("svg"),
                                  QStringLiteral("pdf"), QStringLiteral("emf")};
    for (const QString& known : names)
        if (name.compare(known, Qt::CaseInsensitive) == 0) return FormatOfFileName(QLatin1Char('.') + known);
    throw RuntimeError(
        ErrorNumber::InvalidProcedureCall,
        QStringLiteral("a picture's format is png, bmp, svg, pdf or emf, not \"%1\"").arg(name));
}

void RequirePictureSize(int width, int height, int ratio) {
    const auto isSide = [](int pixels) { return pixels >= 1 && pixels <= LargestSide; };
    if ((width != 0 || height != 0) && !(isSide(width) && isSide(height)))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a picture's sides are 0 and 0 or 1 to %1, not %2 and %3")
                               .arg(LargestSide)
                               .arg(width)
                               .arg(height));
    if (ratio < 1 || ratio > LargestRatio)
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            QStringLiteral("a picture's ratio is from 1 to %1, not %2").arg(LargestRatio).arg(ratio));
}

} // namespace

QStringList OpenGraphIds() {
    RequireFirstThread();
    QStringList ids;
    for (const ViewerPointer& viewer : Process().viewers)
        if (viewer != nullptr) ids += viewer->GraphId();
    return ids;
}

void SetClosedHandler(std::function<void(const QString&)> handler) {
    RequireFirstThread();
    Process().closedHandler = std::move(handler);
}

QByteArray GraphPicture(const QString& graphId, const QString& format, int width, int height, int ratio) {
    RequireFirstThread();
    QString id = graphId;
    const ViewerPointer viewer = FindViewer(id);
    if (viewer == nullptr)
        throw RuntimeError(ErrorNumber::ResourceNotFound,
                           QStringLiteral("no chart of the id \"%1\" is open").arg(id));
    const PictureFormat wanted = FormatNamed(format);
    RequirePictureSize(width, height, ratio);
    const ChartControl& chart = viewer->ChartImage();
    return EncodePicture(
        {chart.Model(), width == 0 ? chart.width() : width, height == 0 ? chart.height() : height}, wanted,
        ratio);
}

} // namespace QmChart6
