#pragma once

#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"

#include <QStringList>

/// A viewer without a window: a real chart control, and plain members for the rest. It writes down what was
/// done to its window.
class TestViewer : public QmChart6::Viewer {
public:
    [[nodiscard]] QString GraphId() const override { return graphId; }
    void SetGraphId(const QString& id) override { graphId = id; }
    [[nodiscard]] QString QmConfig() const override { return config; }
    void SetQmConfig(const QString& name) override { config = name; }
    void SetStatus(const QString& message) override { status = message; }
    [[nodiscard]] int WindowState() const override { return windowState; }
    void SetWindowState(int state) override {
        windowState = state;
        windowLog.append(QStringLiteral("state %1").arg(state));
    }
    // A maximized window has another size.
    [[nodiscard]] int Height() const override { return windowState == 2 ? 20000 : height; }
    void SetHeight(int twips) override {
        height = twips;
        windowLog.append(QStringLiteral("height"));
    }
    [[nodiscard]] int Width() const override { return windowState == 2 ? 30000 : width; }
    void SetWidth(int twips) override {
        width = twips;
        windowLog.append(QStringLiteral("width"));
    }
    [[nodiscard]] bool ControlBar() const override { return controlBar; }
    void SetControlBar(bool on) override { controlBar = on; }
    [[nodiscard]] std::int16_t Stacked() const override { return stacked; }
    void SetStacked(std::int16_t state) override { stacked = state; }
    [[nodiscard]] std::int16_t FullStacked() const override { return fullStacked; }
    void SetFullStacked(std::int16_t state) override { fullStacked = state; }
    [[nodiscard]] std::int16_t Lines() const override { return lines; }
    void SetLines(std::int16_t state) override { lines = state; }
    [[nodiscard]] std::int16_t Markers() const override { return markers; }
    void SetMarkers(std::int16_t state) override { markers = state; }
    [[nodiscard]] QmChart6::ChartControl& ChartImage() override { return chart; }
    void ShowViewer() override { shown = true; }

    [[nodiscard]] QmChart6::Chart& Model() { return chart.Model(); }

    QString graphId = QStringLiteral("SALES");
    QString config;
    QString status;
    int windowState = 0;
    int height = 7605;
    int width = 11580;
    bool controlBar = true;
    std::int16_t stacked = 0;
    std::int16_t fullStacked = 0;
    std::int16_t lines = 1;
    std::int16_t markers = 0;
    bool shown = false;
    QStringList windowLog;
    QmChart6::ChartControl chart;
};
