#pragma once

#include "desktop/QtDesktop.h"

#include <QDialog>
#include <QFileInfo>
#include <QPrinter>

#include <random>

/// A number from 0 to count - 1.
inline int Below(std::mt19937& random, int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

/// The real desktop, but for what would reach beyond the test's folder: files and printers are its own, and
/// so are colours and fonts, whose pickers are Qt's. Half of the time nothing is picked.
class RandomDesktop : public QmChart6::QtDesktop {
public:
    RandomDesktop(std::mt19937& random, QString folder) : random_(random), folder_(std::move(folder)) {}

    std::optional<QString> PickSaveFile(QWidget* /*owner*/,
                                        const QmChart6::SaveFileRequest& request) override {
        if (Coin()) return std::nullopt;
        return QStringLiteral("%1/picture.%2").arg(folder_, request.suffix);
    }
    std::optional<QColor> PickColour(QWidget* /*owner*/, const QColor& /*start*/,
                                     const QString& /*title*/) override {
        if (Coin()) return std::nullopt;
        return QColor(Below(random_, 256), Below(random_, 256), Below(random_, 256));
    }
    std::optional<QmChart6::FontChoice> PickFont(QWidget* /*owner*/, const QmChart6::FontChoice& start,
                                                 const QmChart6::FontPickerTexts& /*texts*/) override {
        if (Coin()) return std::nullopt;
        QmChart6::FontChoice choice = start;
        choice.size = 1 + Below(random_, 60);
        choice.bold = Coin();
        choice.underline = Coin();
        return choice;
    }

    [[nodiscard]] QStringList PrinterNames() const override { return {QStringLiteral("paper")}; }
    [[nodiscard]] std::optional<QString> DefaultPrinter() const override { return QStringLiteral("paper"); }
    [[nodiscard]] QString PrinterProblem(const QString& /*name*/) const override { return {}; }
    [[nodiscard]] std::function<QString()> WatchPrinter(const QString& /*name*/) const override {
        return [] { return QString(); };
    }
    [[nodiscard]] std::unique_ptr<QPrinter> OpenPrinter(const QString& /*name*/) const override {
        auto page = std::make_unique<QPrinter>(QPrinter::HighResolution);
        page->setOutputFormat(QPrinter::PdfFormat);
        page->setOutputFileName(folder_ + QStringLiteral("/page.pdf"));
        return page;
    }
    void PreviewPage(QWidget* /*owner*/, QPrinter& printer, const QString& /*title*/,
                     const std::function<void(QPrinter& printer)>& paint) override {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QStringLiteral("/dev/null"));
        paint(printer);
    }
    [[nodiscard]] std::optional<QString> PickPrinter(QWidget* /*owner*/, QPrinter& /*settings*/) override {
        return Coin() ? std::nullopt : std::optional(QStringLiteral("paper"));
    }

private:
    bool Coin() { return Below(random_, 2) == 0; }

    std::mt19937& random_;
    QString folder_;
};
