#pragma once

#include "config/LookState.h"

#include <QString>

class QWidget;

namespace QmChart6 {

class LookReader;

/// A chart window as stored looks, dialogs and flows see it.
class Viewer {
public:
    virtual ~Viewer() = default;

    /// The text that the host names the window by, trimmed and in upper case.
    [[nodiscard]] virtual QString GraphId() const = 0;

    /// The name of the stored look that the chart is bound to; "" for none.
    [[nodiscard]] virtual QString QmConfig() const = 0;
    virtual void SetQmConfig(const QString& name) = 0;

    /// Shows a message that goes away by itself.
    virtual void SetStatus(const QString& message) = 0;

    /// The look that the window has now.
    [[nodiscard]] virtual LookState Look() const = 0;
    /// Gives the window a look, and does no more than it takes: the size first, then maximizing or restoring
    /// it, then the chart and what stands around it.
    virtual void Show(const LookState& look) = 0;

    /// Opens the window, if it is hidden, without waiting for anything.
    virtual void Open() = 0;

    /// What message boxes belong to; may be null.
    [[nodiscard]] virtual QWidget* Window() = 0;
};

/// Gives the viewer the default look, lets pending events run, and opens it.
void ApplyDefaultLook(Viewer& viewer);

/// Gives the viewer the look that is read on top of `look`, as ApplyLook; where reading fails, as far as it
/// came. False, and nothing done, where there is no look.
bool ShowLook(Viewer& viewer, LookState look, LookReader& reader, bool loadTitles);

} // namespace QmChart6
