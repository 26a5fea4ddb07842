#pragma once

#include "desktop/CurrentDesktop.h"
#include "desktop/QtDesktop.h"

#include <QPrinter>
#include <QStringList>

#include <deque>
#include <functional>

/// The real desktop, but for what a person would answer: that is scripted, and what was asked is kept.
class ScriptedDesktop : public QmChart6::QtDesktop {
public:
    struct Message {
        QString text;
        QString title;
        QmChart6::MessageButtons buttons;
    };

    /// The answers to messages in turn; OK or No when there are none left.
    std::deque<QmChart6::Answer> answers;
    /// What the pickers give in turn; nothing when there are none left.
    std::deque<QString> files;
    std::deque<QColor> colours;
    std::deque<QmChart6::FontChoice> fonts;
    /// The default printer's name, and the PDF file that it prints into.
    std::optional<QString> printer;
    QString printerFile;

    /// The printers that there are, and what the print dialog gives; it is cancelled where that is nothing.
    /// The settings are set by `settle`. The problem of every printer and of every page that it was given.
    QStringList printers;
    std::optional<QString> chosenPrinter;
    std::function<void(QPrinter& settings)> settle = [](QPrinter&) {};
    QString printerProblem;
    QString pageProblem;
    int printDialogs = 0;
    QStringList previews; ///< their titles
    mutable QStringList openedPrinters;

    QList<Message> messages;
    QList<QmChart6::SaveFileRequest> pickers;
    QList<QColor> colourStarts;
    QList<QmChart6::FontChoice> fontStarts;

    QmChart6::Answer ShowMessage(QWidget* /*owner*/, const QString& text, const QString& title,
                                 QmChart6::MessageButtons buttons) override {
        messages.append({text, title, buttons});
        if (!answers.empty()) {
            const auto answer = answers.front();
            answers.pop_front();
            return answer;
        }
        return buttons == QmChart6::MessageButtons::Ok ? QmChart6::Answer::Ok : QmChart6::Answer::No;
    }

    std::optional<QString> PickSaveFile(QWidget* /*owner*/,
                                        const QmChart6::SaveFileRequest& request) override {
        pickers.append(request);
        return Next(files);
    }

    std::optional<QColor> PickColour(QWidget* /*owner*/, const QColor& start,
                                     const QString& /*title*/) override {
        colourStarts.append(start);
        return Next(colours);
    }

    std::optional<QmChart6::FontChoice> PickFont(QWidget* /*owner*/, const QmChart6::FontChoice& start,
                                                 const QmChart6::FontPickerTexts& /*texts*/) override {
        fontStarts.append(start);
        return Next(fonts);
    }

    [[nodiscard]] std::optional<QString> DefaultPrinter() const override { return printer; }
    [[nodiscard]] std::unique_ptr<QPrinter> OpenPrinter(const QString& name) const override {
        openedPrinters.append(name);
        if (printerFile.isEmpty()) return QtDesktop::OpenPrinter(name);
        auto page = std::make_unique<QPrinter>(QPrinter::HighResolution);
        page->setOutputFormat(QPrinter::PdfFormat);
        page->setOutputFileName(printerFile);
        return page;
    }
    [[nodiscard]] QStringList PrinterNames() const override { return printers; }
    [[nodiscard]] QString PrinterProblem(const QString& /*name*/) const override { return printerProblem; }
    [[nodiscard]] std::function<QString()> WatchPrinter(const QString& /*name*/) const override {
        return [this] { return pageProblem; };
    }
    [[nodiscard]] std::optional<QString> PickPrinter(QWidget* /*owner*/, QPrinter& settings) override {
        ++printDialogs;
        settle(settings);
        return chosenPrinter;
    }

    void PreviewPage(QWidget* /*owner*/, QPrinter& page, const QString& title,
                     const std::function<void(QPrinter& page)>& paint) override {
        previews.append(title);
        settle(page);
        paint(page);
    }

private:
    template<class Item>
    static std::optional<Item> Next(std::deque<Item>& queue) {
        if (queue.empty()) return std::nullopt;
        const Item item = queue.front();
        queue.pop_front();
        return item;
    }
};
