#pragma once

#include <QObject>

#include <functional>

class QAction;

namespace QmChart6 {

class ControlBarCommands;
class ElementEditing;
class LookChanges;
class Viewer;
class ViewerMenu;
class ViewerToolBar;
struct ShownLook;

/// What a person asks of a viewer by its control bar, its menu, its chart and keys, and what is done then.
class ViewerCommands : public QObject {
public:
    struct Parts {
        Viewer& viewer;
        ShownLook& shown;
        LookChanges& changes;
        ControlBarCommands& bar;
        ElementEditing& editing;
        ViewerToolBar& tbControlBar;
        ViewerMenu& mProperties;
    };
    /// Does what an event of the viewer's asks for, and keeps the viewer until that is done.
    using Answer = std::function<void(const std::function<void()>& command)>;

    ViewerCommands(const Parts& parts, Answer answer);

    /// Take back the last step of what a person did to the look, and do it again; nothing where there is
    /// none.
    void Undo();
    void Redo();

private:
    void ConnectBar();
    void ConnectMenu();
    void ConnectEntry(QAction* entry, const std::function<void()>& command);
    void ConnectChart();
    void ConnectKeys();
    /// Does what a person asks for, as one step that can be taken back.
    void Do(const std::function<void()>& command);

    Parts parts_;
    Answer answer_;
};

} // namespace QmChart6
