#pragma once

#include "qmchart6/Array.h"
#include "qmchart6/Export.h"
#include "qmchart6/Language.h"
#include "qmchart6/RuntimeError.h"
#include "qmchart6/Variant.h"

#include <QString>

#include <cstdint>

namespace QmChart6 {

/// The automation class: shows, prints, saves and closes charts of a host's tables. Objects hold nothing of
/// their own; all share the viewers, the configuration folder and the language of the process.
///
/// A chart is addressed by its graph id, a text that the host chooses; blanks at both ends and case do not
/// count. `Data` holds a table of numbers (row, column), `RowLabels` and `ColumnLabels` one text for each;
/// elements are taken from each array's own lower bound. An Empty or not-a-number cell is a missing value.
///
/// All members are called on one thread, the first that called any; another raises error 5. Where the host
/// has no QApplication, one is made at first use and kept. When the host's own ends, all viewers go with it
/// unasked; from then on QmKillGraph finds none, and what needs an application raises error 5. Every failure
/// is a RuntimeError: 9 (an array too small), 13 (a cell or an argument that is no number), 94 (a Null cell),
/// 326 (a language that has no texts), 380 (a negative number of rows or columns), and those of files (53,
/// 61, 70, 75, 76) and printers (482).
class QMCHART6_EXPORT QMChartArray {
public:
    /// The folder of the configuration database: the text that "QmConfig.mdb" is put behind, so it ends in a
    /// path separator. Write only; nothing is opened.
    void SetQmChartConfigPath(const QString& value);

    /// Values of UseConfig: the default look; the stored look with the caller's titles; the stored look and
    /// titles.
    [[nodiscard]] std::int16_t QmChNo() const;
    [[nodiscard]] std::int16_t QmChNoTitles() const;
    [[nodiscard]] std::int16_t QmChYes() const;

    /// Values of Language.
    [[nodiscard]] std::int16_t QmChEnglish() const {
        return static_cast<std::int16_t>(QmChart6::Language::English);
    }
    [[nodiscard]] std::int16_t QmChPortuguese() const {
        return static_cast<std::int16_t>(QmChart6::Language::Portuguese);
    }
    [[nodiscard]] std::int16_t QmChSpanish() const {
        return static_cast<std::int16_t>(QmChart6::Language::Spanish);
    }
    [[nodiscard]] std::int16_t QmChItalian() const {
        return static_cast<std::int16_t>(QmChart6::Language::Italian);
    }

    /// Shows the chart in the viewer of that graph id, which is opened if there is none. RowTitle is the
    /// category axis' title, ColumnTitle the depth axis', ValueTitle that of both value axes. Sets the
    /// process' language.
    void QmMakeGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns, const Variant& Data,
                     const Array<QString>& RowLabels, const Array<QString>& ColumnLabels,
                     const QString& ChartTitle, const QString& RowTitle, const QString& ColumnTitle,
                     const QString& ValueTitle, const Variant& Language = std::int16_t{0},
                     std::uint8_t UseConfig = 0);

    /// Closes the viewer of that graph id; an unknown id does nothing.
    void QmKillGraph(const QString& GraphId);

    /// Builds the chart as QmMakeGraph, prints it, and closes its viewer. The language stays as it is.
    void QmPrintGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns, const Variant& Data,
                      const Array<QString>& RowLabels, const Array<QString>& ColumnLabels,
                      const QString& ChartTitle, const QString& RowTitle, const QString& ColumnTitle,
                      const QString& ValueTitle, std::uint8_t UseConfig = 0);

    /// Builds the chart as QmPrintGraph, saves its picture, and closes its viewer. The format follows the
    /// file name's extension: .bmp, .png, .svg, .pdf, otherwise a metafile (EMF). An empty FileName asks the
    /// person at the desk; on return it holds the name that was used.
    void QmSaveGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns, const Variant& Data,
                     const Array<QString>& RowLabels, const Array<QString>& ColumnLabels,
                     const QString& ChartTitle, const QString& RowTitle, const QString& ColumnTitle,
                     const QString& ValueTitle, std::uint8_t UseConfig, QString& FileName);
    /// The same with an empty FileName.
    void QmSaveGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns, const Variant& Data,
                     const Array<QString>& RowLabels, const Array<QString>& ColumnLabels,
                     const QString& ChartTitle, const QString& RowTitle, const QString& ColumnTitle,
                     const QString& ValueTitle, std::uint8_t UseConfig = 0);

    /// A shortcut to QmMakeGraph with Spanish texts and the default look; ConfigId is not used. Mind the
    /// order of the titles.
    void QmMkGr(const QString& GraphId, const QString& ConfigId, std::int16_t Rows, std::int16_t Columns,
                const Variant& Data, const Array<QString>& RowLabels, const Array<QString>& ColumnLabels,
                const QString& ChartTitle, const QString& ValueTitle, const QString& RowTitle);
};

} // namespace QmChart6
