#pragma once

#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"

/// A viewer without a window: it keeps what it is told. The chart can be looked at as it is.
class PlainViewer : public QmChart6::Viewer {
public:
    QmChart6::Chart& Model() { return chart_.Model(); }

    [[nodiscard]] QString GraphId() const override { return graphId_; }
    void SetGraphId(const QString& id) override { graphId_ = id; }
    [[nodiscard]] QString QmConfig() const override { return config_; }
    void SetQmConfig(const QString& name) override { config_ = name; }
    void SetStatus(const QString& message) override { status_ = message; }
    [[nodiscard]] int WindowState() const override { return windowState_; }
    void SetWindowState(int state) override { windowState_ = state; }
    [[nodiscard]] int Height() const override { return height_; }
    void SetHeight(int twips) override { height_ = twips; }
    [[nodiscard]] int Width() const override { return width_; }
    void SetWidth(int twips) override { width_ = twips; }
    [[nodiscard]] bool ControlBar() const override { return controlBar_; }
    void SetControlBar(bool shown) override { controlBar_ = shown; }
    [[nodiscard]] std::int16_t Stacked() const override { return stacked_; }
    void SetStacked(std::int16_t state) override { stacked_ = state; }
    [[nodiscard]] std::int16_t FullStacked() const override { return fullStacked_; }
    void SetFullStacked(std::int16_t state) override { fullStacked_ = state; }
    [[nodiscard]] std::int16_t Lines() const override { return lines_; }
    void SetLines(std::int16_t state) override { lines_ = state; }
    [[nodiscard]] std::int16_t Markers() const override { return markers_; }
    void SetMarkers(std::int16_t state) override { markers_ = state; }
    [[nodiscard]] QmChart6::ChartControl& ChartImage() override { return chart_; }
    void ShowViewer() override {}

private:
    QmChart6::ChartControl chart_;
    QString graphId_;
    QString config_;
    QString status_;
    int windowState_ = 0;
    int height_ = 0;
    int width_ = 0;
    bool controlBar_ = true;
    std::int16_t stacked_ = 0;
    std::int16_t fullStacked_ = 0;
    std::int16_t lines_ = 1;
    std::int16_t markers_ = 0;
};
