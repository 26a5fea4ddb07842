#pragma once

#include "qmchart6/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace QmChart6 {

// For hosts that want to know what is open.

/// The graph ids of the open charts, trimmed and in upper case, in the order of their viewers.
QMCHART6_EXPORT QStringList OpenGraphIds();

/// Called with the graph id after a viewer was closed, by whomever, those that QmPrintGraph and
/// QmSaveGraph close among them; {} calls nobody. It must not throw.
QMCHART6_EXPORT void SetClosedHandler(std::function<void(const QString& graphId)> handler);

/// A picture of an open chart as bytes: `format` is "png", "bmp", "svg", "pdf" or "emf", `width` and `height`
/// are pixels of which 96 make an inch, 0 by 0 those of the viewer, and `ratio`, from 1 to 9, is how many
/// device pixels a pixel of a "png" or "bmp" has on each side. Raises 326 (no chart of that id is open), 5
/// (another format) and 380 (sides that are neither 0 by 0 nor 1 to 16,384, another ratio).
QMCHART6_EXPORT QByteArray GraphPicture(const QString& graphId, const QString& format, int width = 0,
                                        int height = 0, int ratio = 1);

// For hosts that run no event loop of their own.

/// Whether windows can be shown. Without a display, charts are still made, saved and printed, unseen.
QMCHART6_EXPORT bool HasDisplay();

/// Handles events until the last viewer was closed; returns at once when none is shown, and where there is no
/// display, since nobody could close it.
/// Call it, as the others, on the thread that makes the charts; another raises error 5.
QMCHART6_EXPORT void RunUntilViewersAreClosed();

/// Handles events as they come, for so many milliseconds; 0 or less handles those that wait.
QMCHART6_EXPORT void PumpEvents(int milliseconds);

// For hosts that want numbers as they are.

/// From here on the labels of values have as many decimals as the ticks of an axis, or the data, need, with
/// the locale's grouping, in charts that are shown, saved and printed alike, whatever their look. Off, as at
/// first, QmMakeGraph decides between none and two for all charts that follow.
QMCHART6_EXPORT void SetFormatsFollowData(bool on);

// For hosts that save pictures.

/// The endings of file names that tell a picture's form, without their dots. Any other ending makes an emf.
QMCHART6_EXPORT QStringList PictureEndings();

// For hosts that print.

/// The names of all printers, in the system's order.
QMCHART6_EXPORT QStringList PrinterNames();

/// The name of the system's default printer; "" where there is none.
QMCHART6_EXPORT QString DefaultPrinterName();

/// From here on QmPrintGraph prints on the printer of that name and asks nobody. With "", as at first, the
/// person at the desk chooses a printer each time; without a display it is the default printer. Raises 482
/// for a name that no printer bears, and keeps what was set.
QMCHART6_EXPORT void SetPrinter(const QString& name);

} // namespace QmChart6
