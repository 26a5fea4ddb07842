#pragma once

#include <QString>

#include <cstdint>

namespace QmChart6 {

class ChartControl;

/// A chart window as stored looks, dialogs and flows see it.
class Viewer {
public:
    virtual ~Viewer() = default;

    /// The text that the host names the window by, trimmed and in upper case.
    [[nodiscard]] virtual QString GraphId() const = 0;
    virtual void SetGraphId(const QString& id) = 0;

    /// The name of the stored look that the chart is bound to; "" for none.
    [[nodiscard]] virtual QString QmConfig() const = 0;
    virtual void SetQmConfig(const QString& name) = 0;

    /// Shows a message that goes away by itself.
    virtual void SetStatus(const QString& message) = 0;

    /// 0 normal, 1 minimized, 2 maximized; setting another number raises error 380.
    [[nodiscard]] virtual int WindowState() const = 0;
    virtual void SetWindowState(int state) = 0;

    // In twips, of the whole window.
    [[nodiscard]] virtual int Height() const = 0;
    virtual void SetHeight(int twips) = 0;
    [[nodiscard]] virtual int Width() const = 0;
    virtual void SetWidth(int twips) = 0;

    [[nodiscard]] virtual bool ControlBar() const = 0;
    virtual void SetControlBar(bool shown) = 0;

    // The states of four chart options: 0 off, any other number on.
    [[nodiscard]] virtual std::int16_t Stacked() const = 0;
    virtual void SetStacked(std::int16_t state) = 0;
    [[nodiscard]] virtual std::int16_t FullStacked() const = 0;
    virtual void SetFullStacked(std::int16_t state) = 0;
    [[nodiscard]] virtual std::int16_t Lines() const = 0;
    virtual void SetLines(std::int16_t state) = 0;
    [[nodiscard]] virtual std::int16_t Markers() const = 0;
    virtual void SetMarkers(std::int16_t state) = 0;

    [[nodiscard]] virtual ChartControl& ChartImage() = 0;

    /// Shows the window, if it is hidden, without waiting for anything.
    virtual void ShowViewer() = 0;
};

/// Gives the viewer's chart the default look, lets pending events run, and shows the viewer.
void ApplyDefaultLook(Viewer& viewer);

} // namespace QmChart6
