#include "automation/ViewerList.h"

#include "base/ProcessState.h"
#include "chartcontrol/widget/ChartControl.h"
#include "desktop/Application.h"
#include "qmchart6/RuntimeError.h"
#include "viewer/GraphForm.h"

#include <QThread>

#include <algorithm>

namespace QmChart6 {

namespace {

QString Normalized(const QString& graphId) {
    return graphId.trimmed().toUpper();
}

/// Takes a closed viewer away: at once where no event is being handled that could be the viewer's own, since
/// a host without an event loop would collect them otherwise; later where one may be.
void Dispose(GraphForm* viewer) {
    if (QThread::currentThread()->loopLevel() == 0 && !viewer->HandlesOwnEvent())
        delete viewer; // NOLINT(cppcoreguidelines-owning-memory): this is the owner's deleter
    else
        viewer->deleteLater();
}

} // namespace

const ViewerPointer& ViewerList::At(int place) const {
    if (place < LowerBound() || place > UpperBound())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("a viewer's place is from %1 to %2, not %3")
                               .arg(LowerBound())
                               .arg(UpperBound())
                               .arg(place));
    return slots_[static_cast<std::size_t>(place - LowerBound())];
}

void ViewerList::Append(ViewerPointer viewer) {
    slots_.push_back(std::move(viewer));
}

ViewerPointer ViewerList::Release(int place) {
    static_cast<void>(At(place));
    return std::move(slots_[static_cast<std::size_t>(place - LowerBound())]);
}

ViewerList Viewers() {
    return ViewerList(Process().viewers);
}

namespace {

/// The place of the first viewer of that id, or one past the last.
int PlaceOf(const QString& normalizedId) {
    const ViewerList viewers = Viewers();
    int place = viewers.LowerBound();
    for (; place <= viewers.UpperBound(); ++place) {
        const ViewerPointer& viewer = viewers.At(place);
        if (viewer != nullptr && viewer->GraphId().toUpper() == normalizedId) break;
    }
    return place;
}

/// The place of that very viewer, whatever others have its id, or one past the last.
int PlaceOf(const GraphForm& wanted) {
    const ViewerList viewers = Viewers();
    int place = viewers.LowerBound();
    while (place <= viewers.UpperBound() && viewers.At(place).get() != &wanted) ++place;
    return place;
}

void CloseAt(int place) {
    if (place > Viewers().UpperBound()) return;
    // Out of the list first: closing tells the list, which must not find the viewer again.
    const ViewerPointer viewer = Viewers().Release(place);
    viewer->close();
}

/// Windows cannot outlive their application; nobody is left to be asked about them.
void ForgetAll() {
    for (ViewerPointer& viewer : Process().viewers) viewer.reset();
}

} // namespace

ViewerPointer FindViewer(QString& graphId) {
    graphId = Normalized(graphId);
    const int place = PlaceOf(graphId);
    return place <= Viewers().UpperBound() ? Viewers().At(place) : nullptr;
}

ViewerPointer CreateViewer(const QString& graphId) {
    ViewerPointer viewer(new GraphForm, Dispose);
    Viewers().Append(viewer);
    viewer->SetGraphId(Normalized(graphId));
    const GraphForm& form = *viewer;
    QObject::connect(&form, &GraphForm::Closed, &form, [&form] {
        const QString id = form.GraphId();
        const int place = PlaceOf(form);
        if (place <= Viewers().UpperBound()) Viewers().Release(place);
        // What the host is told through may be put away by itself meanwhile.
        if (const auto handler = Process().closedHandler) handler(id);
    });
    WhenApplicationEnds(ForgetAll);
    return viewer;
}

void CloseViewer(const QString& graphId) {
    CloseAt(PlaceOf(Normalized(graphId)));
}

void CloseViewer(const ViewerPointer& viewer) {
    CloseAt(PlaceOf(*viewer));
}

bool AnyViewerShown() {
    return std::any_of(Process().viewers.begin(), Process().viewers.end(),
                       [](const ViewerPointer& viewer) { return viewer != nullptr && viewer->isVisible(); });
}

} // namespace QmChart6
