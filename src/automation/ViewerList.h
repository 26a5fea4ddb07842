#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace QmChart6 {

class GraphForm;

/// Takes a closed viewer away: at once where no event is being handled that could be the viewer's own,
/// otherwise when that event is over.
struct ViewerDisposal {
    void operator()(GraphForm* viewer) const;
};
using ViewerPointer = std::unique_ptr<GraphForm, ViewerDisposal>;

/// The process' open viewers: an array that grows by one for each new viewer. A closed viewer's slot is
/// released, not removed, so no other viewer changes its place.
class ViewerList {
public:
    [[nodiscard]] int LowerBound() const { return 0; }
    [[nodiscard]] int UpperBound() const { return LowerBound() + static_cast<int>(slots_.size()) - 1; }
    /// The viewer at a place within the bounds, null where the slot was released; raises 9 elsewhere.
    [[nodiscard]] GraphForm* At(int place) const;
    void Append(ViewerPointer viewer);
    /// Empties a slot and hands its viewer over.
    ViewerPointer Release(int place);

private:
    std::vector<ViewerPointer> slots_;
};

ViewerList& Viewers();

/// Trims the id and puts it in upper case, in place, and gives the first viewer of that id; null for none.
GraphForm* FindViewer(QString& graphId);

/// A new viewer of that id at the end of the list, not yet shown.
GraphForm& CreateViewer(const QString& graphId);

/// Closes the first viewer of that id, if there is one, and releases its slot.
void CloseViewer(const QString& graphId);

/// The viewer that a reference holds; raises 91 where it holds none.
GraphForm& RequireViewer(GraphForm* viewer);

/// Whether using a viewer reference raises 91. Any other error of it is raised again.
bool IsViewerMissing(const std::function<void()>& useReference);
bool IsViewerMissing(GraphForm* viewer);

/// Whether any viewer can be seen on the desktop.
bool AnyViewerShown();

} // namespace QmChart6
