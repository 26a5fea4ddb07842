#pragma once

#include "qmchart6/Array.h"
#include "qmchart6/Variant.h"

#include <QString>

#include <cstdint>

namespace QmChart6 {

/// Values of UseConfig. Every value but No asks for the stored look.
enum class UseConfig : std::uint8_t { No = 0, NoTitles = 1, Yes = 2 };

/// What a host passes to have a chart made.
struct ChartRequest {
    QString graphId;
    int rows = 0;
    int columns = 0;
    const Variant& data;
    const Array<QString>& rowLabels;
    const Array<QString>& columnLabels;
    QString chartTitle;
    QString rowTitle;
    QString columnTitle;
    QString valueTitle;
    UseConfig useConfig = UseConfig::No;
};

// The flows behind the automation class. Errors are RuntimeErrors; nothing is rolled back.

void MakeGraph(const ChartRequest& request, const Variant& language);
void PrintGraph(const ChartRequest& request);
/// `fileName` as SaveChartSnapshot takes it.
void SaveGraph(const ChartRequest& request, QString& fileName);
void KillGraph(const QString& graphId);

} // namespace QmChart6
