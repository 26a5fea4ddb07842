#pragma once

#include "config/Viewer.h"

#include <QStringList>

/// A viewer without a window: a look, and plain members for the rest. It writes down what was done to its
/// window.
class TestViewer : public QmChart6::Viewer {
public:
    [[nodiscard]] QString GraphId() const override { return graphId; }
    [[nodiscard]] QString QmConfig() const override { return config; }
    void SetQmConfig(const QString& name) override { config = name; }
    void SetStatus(const QString& message) override { status = message; }
    [[nodiscard]] QmChart6::LookState Look() const override { return look; }
    void Show(const QmChart6::LookState& shown) override {
        if (shown.height != look.height) windowLog.append(QStringLiteral("height"));
        if (shown.width != look.width) windowLog.append(QStringLiteral("width"));
        if (shown.maximized != look.maximized)
            windowLog.append(shown.maximized ? QStringLiteral("maximized") : QStringLiteral("restored"));
        look = shown;
    }
    void Open() override { opened = true; }
    [[nodiscard]] QWidget* Window() override { return nullptr; }

    [[nodiscard]] QmChart6::Chart& Model() { return look.chart; }

    QString graphId = QStringLiteral("SALES");
    QString config;
    QString status;
    QmChart6::LookState look;
    bool opened = false;
    QStringList windowLog;
};
