#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace QmChart6 {

class Desktop;
class GraphForm;
class Look;

/// All that the process remembers from one call of its host to the next, in one place, so that tests can
/// begin anew. Each floor reads and writes the part that it offers functions for; what it points to is known
/// up there only.
struct ProcessState {
    QString configurationFolder; ///< as the host gave it
    std::int16_t languageCode = 0;
    QString qtTextsLocale; ///< "" for English
    QString valueLabelFormat = QStringLiteral("0");
    bool formatsFollowData = false;                               ///< as the host asked
    std::map<QString, std::shared_ptr<const Look>> lookOverrides; ///< by graph id
    std::optional<QSize> sizeOfNewCharts;                         ///< pixels; nothing leaves it to looks
    int pixelsPerInch = 96;                            ///< of them, and of pictures that the host saves
    QString hostPrinter;                               ///< set by the host; "" for none
    QString chosenPrinter;                             ///< by a person; "" until then
    std::vector<std::shared_ptr<GraphForm>> viewers;   ///< an empty place for each that was closed
    std::function<void(const QString&)> closedHandler; ///< the host's; takes a graph id
    Desktop* desktop = nullptr;                        ///< in place of the real one, where there is one
};

/// This process' state. It is never destroyed: Qt may be gone before a process' own objects are.
ProcessState& Process();

/// Forgets all but the desktop, which whoever put it in place takes away.
void ResetProcess();

} // namespace QmChart6
