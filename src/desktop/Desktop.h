#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QMimeData;
class QPrinter;
class QWidget;

namespace QmChart6 {

enum class MessageButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

/// What a save-file picker is set up with. `filter` is a pattern ("*.bmp"), `suffix` has no dot.
struct SaveFileRequest {
    QString title;
    QString filter;
    QString suffix;
};

/// What the product asks of a desktop. Everything that would wait for a person goes through here, so that
/// each flow runs unattended too.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a text and waits for its answer. `owner` may be null.
    virtual Answer ShowMessage(QWidget* owner, const QString& text, const QString& title,
                               MessageButtons buttons) = 0;

    /// The file that the person chose to write to, asked once more before an existing one is overwritten;
    /// nothing when cancelled.
    virtual std::optional<QString> PickSaveFile(QWidget* owner, const SaveFileRequest& request) = 0;

    virtual void SetClipboard(std::unique_ptr<QMimeData> content) = 0;
    /// What the clipboard holds; owned by the clipboard. May be null.
    [[nodiscard]] virtual const QMimeData* Clipboard() const = 0;
    virtual void ClearClipboard() = 0;

    /// The name of the printer that prints where none is chosen; nothing where there is no printer.
    [[nodiscard]] virtual std::optional<QString> DefaultPrinter() const = 0;
    /// The printer of that name at its full resolution; null where there is none.
    [[nodiscard]] virtual std::unique_ptr<QPrinter> OpenPrinter(const QString& name) const = 0;
    /// The names of all printers, in the system's order.
    [[nodiscard]] virtual QStringList PrinterNames() const = 0;
    /// As QueueProblem and WatchQueue tell it.
    [[nodiscard]] virtual QString PrinterProblem(const QString& name) const = 0;
    [[nodiscard]] virtual std::function<QString()> WatchPrinter(const QString& name) const = 0;
    /// Lets the person choose a printer and its settings, beginning with those of `settings`, which holds the
    /// chosen ones then. Gives the printer's name; "" for a file in place of a printer; nothing when
    /// cancelled.
    [[nodiscard]] virtual std::optional<QString> PickPrinter(QWidget* owner, QPrinter& settings) = 0;
};

/// The process' desktop: a person's where there is a display, otherwise one that answers by itself.
Desktop& CurrentDesktop();

/// Puts another desktop in place for as long as it lives.
class ScopedDesktop {
public:
    explicit ScopedDesktop(Desktop& desktop);
    ~ScopedDesktop();
    ScopedDesktop(const ScopedDesktop&) = delete;
    ScopedDesktop& operator=(const ScopedDesktop&) = delete;

private:
    Desktop* before_;
};

} // namespace QmChart6
