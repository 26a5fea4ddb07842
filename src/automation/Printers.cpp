#include "automation/Printers.h"

#include "base/ProcessState.h"
#include "desktop/Application.h"
#include "desktop/CurrentDesktop.h"
#include "qmchart6/Host.h"
#include "viewer/PrintChart.h"

namespace QmChart6 {

namespace {

Desktop& HostDesktop() {
    RequireFirstThread();
    EnsureApplication();
    return CurrentDesktop();
}

} // namespace

const QString& HostPrinter() {
    return Process().hostPrinter;
}

QStringList PrinterNames() {
    return HostDesktop().PrinterNames();
}

QString DefaultPrinterName() {
    return HostDesktop().DefaultPrinter().value_or(QString());
}

void SetPrinter(const QString& name) {
    if (!name.isEmpty() && !HostDesktop().PrinterNames().contains(name)) RaiseNoPrinterNamed(name);
    Process().hostPrinter = name;
}

} // namespace QmChart6
