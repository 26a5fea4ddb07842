#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QDialog;
class QMimeData;
class QPrinter;
class QWidget;

namespace QmChart6 {

/// YesNoByDefault asks too, and Enter means No.
enum class MessageButtons { Ok, YesNo, YesNoByDefault };
enum class Answer { Ok, Yes, No };

/// What a save-file picker is set up with. `filter` is a pattern ("*.bmp"), `suffix` has no dot.
struct SaveFileRequest {
    QString title;
    QString filter;
    QString suffix;
    QString name = {};        ///< that is proposed, without an ending; "" for none
    QStringList forms = {};   ///< the suffixes to choose from; a name with another one is refused
    QString formCaption = {}; ///< of their list
    QString refusal = {};     ///< %1 the name, %2 the endings
};

/// A font as a person chooses it. `size` in points.
struct FontChoice {
    QString family;
    double size = 9;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;
    QColor colour{};

    friend bool operator==(const FontChoice&, const FontChoice&) = default;
};

/// The words of a font picker; a mnemonic is marked by "&".
struct FontPickerTexts {
    QString title;
    QString colour;
    QString ok;
    QString cancel;
    QString notInstalled = {}; ///< %1 the font's name, %2 what is drawn for it
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

    /// Shows a dialog and waits until it is accepted or rejected.
    virtual void RunModal(QDialog& dialog) = 0;

    /// The colour that the person chose; nothing when cancelled. `owner` may be null.
    virtual std::optional<QColor> PickColour(QWidget* owner, const QColor& start, const QString& title) = 0;

    /// The font that the person chose; nothing when cancelled. What they did not touch stays as in `start`,
    /// a font that is not installed too. `owner` may be null.
    virtual std::optional<FontChoice> PickFont(QWidget* owner, const FontChoice& start,
                                               const FontPickerTexts& texts) = 0;

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
    /// Shows what `paint` puts on the printer's page, and prints it where the person says so. Raises what
    /// `paint` raises.
    virtual void PreviewPage(QWidget* owner, QPrinter& printer, const QString& title,
                             const std::function<void(QPrinter& printer)>& paint) = 0;
};

} // namespace QmChart6
