#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace QmChart6 {

class GraphForm;

/// Whoever works on a viewer holds it: a host's timer, or a person, may close it in the middle.
using ViewerPointer = std::shared_ptr<GraphForm>;

/// The process' open viewers: an array that grows by one for each new viewer. A closed viewer's slot is
/// released, not removed, so no other viewer changes its place.
class ViewerList {
public:
    explicit ViewerList(std::vector<ViewerPointer>& slots) : slots_(slots) {}

    [[nodiscard]] int LowerBound() const { return 0; }
    [[nodiscard]] int UpperBound() const { return LowerBound() + static_cast<int>(slots_.size()) - 1; }
    /// The viewer at a place within the bounds, null where the slot was released; raises 9 elsewhere.
    [[nodiscard]] const ViewerPointer& At(int place) const;
    void Append(ViewerPointer viewer);
    /// Empties a slot and hands its viewer over.
    ViewerPointer Release(int place);

private:
    std::vector<ViewerPointer>& slots_;
};

ViewerList Viewers();

/// Trims the id and puts it in upper case, in place, and gives the first viewer of that id; null for none.
ViewerPointer FindViewer(QString& graphId);

/// A new viewer of that id at the end of the list, not yet shown.
ViewerPointer CreateViewer(const QString& graphId);

/// Closes the first viewer of that id, if there is one, and releases its slot.
void CloseViewer(const QString& graphId);

/// Closes that viewer, unless it is closed already, and releases its slot.
void CloseViewer(const ViewerPointer& viewer);

/// Whether a reference holds no viewer.
[[nodiscard]] inline bool IsViewerMissing(const ViewerPointer& viewer) {
    return viewer == nullptr;
}

/// Whether any viewer can be seen on the desktop.
bool AnyViewerShown();

} // namespace QmChart6
