#include "viewer/ChartWarnings.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "text/Remarks.h"

namespace QmChart6 {

void TellWarnings(Viewer& viewer, ChartControl& chart) {
    QStringList told;
    for (const QString& warning : chart.CurrentScene().warnings) told.append(LocalRemark(warning));
    if (told.isEmpty()) return;
    QString sentence = told.join(QStringLiteral("; "));
    sentence[0] = sentence[0].toUpper();
    viewer.SetStatus(sentence);
}

} // namespace QmChart6
