#pragma once

#include <memory>

class QPrinter;
class QWidget;

namespace QmChart6 {

/// A viewer's print dialog. What it chooses is the process' printer from then on; until something was chosen,
/// that is the system's default printer.
class QmPrintDialog {
public:
    /// `owner` may be null. `wide`: what is to be printed is wider than high, for which the dialog proposes a
    /// page that is so too.
    QmPrintDialog(QWidget* owner, bool wide) : owner_(owner), wide_(wide) {}

    /// The process' printer with the settings that the dialog begins with; one that prints into a file where
    /// there is no printer.
    [[nodiscard]] std::unique_ptr<QPrinter> Proposed() const;

    /// Asks for a printer and its settings, and gives that printer, set up so; null when cancelled. Where no
    /// printer bears the chosen name, the process' printer stays and gets the settings. Raises 482 where
    /// there is no printer.
    [[nodiscard]] std::unique_ptr<QPrinter> Execute() const;

private:
    QWidget* owner_;
    bool wide_;
};

} // namespace QmChart6
