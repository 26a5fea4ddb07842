#pragma once

#include "automation/ViewerList.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "qmchart6/QMChartArray.h"
#include "support/Raises.h"
#include "support/Samples.h"
#include "support/ScriptedDesktop.h"
#include "text/LocalText.h"
#include "viewer/GraphForm.h"

/// Nobody but the script is at the desk.
class AutomationTest : public testing::Test {
protected:
    /// A chart of 3 rows and 2 columns.
    void Make(const QString& id, const QmChart6::Variant& language = std::int16_t{0},
              std::uint8_t useConfig = 0) {
        charts.QmMakeGraph(id, 3, 2, data, rowLabels, columnLabels, title, rowTitle, columnTitle, valueTitle,
                           language, useConfig);
    }

    static QmChart6::GraphForm* Viewer(QString id) { return QmChart6::FindViewer(id).get(); }
    static const QmChart6::Chart& ChartOf(const char* id) {
        return Viewer(QLatin1String(id))->ChartImage().Model();
    }

    QmChart6::QMChartArray charts;
    ScriptedDesktop desktop;
    QmChart6::ScopedDesktop scope{desktop};
    QmChart6::Variant data = Numbers(3, 2);
    QmChart6::Array<QString> rowLabels = Names(QStringLiteral("row"), 3);
    QmChart6::Array<QString> columnLabels = Names(QStringLiteral("column"), 2);
    QString title = QStringLiteral("Title");
    QString rowTitle = QStringLiteral("Rows");
    QString columnTitle = QStringLiteral("Columns");
    QString valueTitle = QStringLiteral("Values");
};
