#pragma once

#include "chartcontrol/paint/PictureFormat.h"

#include <QMimeData>

namespace QmChart6 {

/// A chart for the clipboard: SVG, PNG, BMP, EMF and PDF pictures and the table as text, each made when it is
/// asked for, all from the chart as it was when this was made.
class ChartMimeData : public QMimeData {
    Q_OBJECT

public:
    explicit ChartMimeData(Picture picture);

    [[nodiscard]] bool hasFormat(const QString& mimeType) const override;
    [[nodiscard]] QStringList formats() const override;

protected:
    [[nodiscard]] QVariant retrieveData(const QString& mimeType, QMetaType preferredType) const override;

private:
    Picture picture_;
};

} // namespace QmChart6
