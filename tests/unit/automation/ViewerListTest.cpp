#include "AutomationTest.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <utility>

using namespace QmChart6;

using ViewerListTest = AutomationTest;

TEST_F(ViewerListTest, FindViewerTrimsAndCapitalizesTheCallersText) {
    QString id = QStringLiteral("  sales \t");
    EXPECT_EQ(FindViewer(id), nullptr);
    EXPECT_EQ(id, "SALES");
}

TEST_F(ViewerListTest, CreateViewerAppendsAndTakesTheNormalizedId) {
    const int before = Viewers().UpperBound();
    const ViewerPointer viewer = CreateViewer(QStringLiteral(" sales "));
    EXPECT_EQ(Viewers().UpperBound(), before + 1);
    EXPECT_EQ(Viewers().At(before + 1), viewer);
    EXPECT_EQ(viewer->GraphId(), "SALES");
    EXPECT_FALSE(viewer->isVisible());
    EXPECT_FALSE(viewer->ChartImage().isHidden());
}

TEST_F(ViewerListTest, AClosedViewersSlotIsReleasedAndNotRemoved) {
    CreateViewer(QStringLiteral("a"));
    const int place = Viewers().UpperBound();
    const ViewerPointer second = CreateViewer(QStringLiteral("b"));
    CloseViewer(QStringLiteral(" A "));
    EXPECT_EQ(Viewers().At(place), nullptr);
    EXPECT_EQ(Viewers().At(place + 1), second);
    EXPECT_EQ(Viewers().UpperBound(), place + 1);
}

TEST_F(ViewerListTest, APlaceOutsideTheBoundsRaises9) {
    EXPECT_RAISES(9, Viewers().At(Viewers().LowerBound() - 1));
    EXPECT_RAISES(9, Viewers().At(Viewers().UpperBound() + 1));
}

TEST_F(ViewerListTest, AViewerThatThePersonClosesLeavesTheList) {
    Make(QStringLiteral("a"));
    const QPointer<GraphForm> viewer = Viewer(QStringLiteral("a"));
    viewer->close();
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(viewer.isNull());
}

TEST_F(ViewerListTest, AViewerThatIsKilledIsGoneAtOnce) {
    Make(QStringLiteral("a"));
    const QPointer<GraphForm> viewer = Viewer(QStringLiteral("a"));
    charts.QmKillGraph(QStringLiteral("a"));
    EXPECT_TRUE(viewer.isNull());
}

TEST_F(ViewerListTest, KillingAnUnknownIdDoesNothing) {
    Make(QStringLiteral("a"));
    charts.QmKillGraph(QStringLiteral("b"));
    EXPECT_NE(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(ViewerListTest, IsViewerMissingIsTrueForAnEmptyReferenceOnly) {
    EXPECT_TRUE(IsViewerMissing(ViewerPointer()));
    EXPECT_FALSE(IsViewerMissing(CreateViewer(QStringLiteral("a"))));
    const ViewerPointer released = Viewers().Release(Viewers().UpperBound());
    EXPECT_FALSE(IsViewerMissing(released));
    EXPECT_TRUE(IsViewerMissing(Viewers().At(Viewers().UpperBound())));
}

TEST_F(ViewerListTest, AViewerThatAHostKillsWhileItIsMadeStaysClosed) {
    Make(QStringLiteral("a"));
    const QPointer<GraphForm> viewer = Viewer(QStringLiteral("a"));
    QTimer hosts;
    QObject::connect(&hosts, &QTimer::timeout, [this] { charts.QmKillGraph(QStringLiteral("a")); });
    hosts.start(0);
    Make(QStringLiteral("a"));
    EXPECT_TRUE(viewer.isNull());
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(ViewerListTest, KillingAModifiedViewerAsksAndCloses) {
    Make(QStringLiteral("a"));
    Viewer(QStringLiteral("a"))->SetModified(true);
    charts.QmKillGraph(QStringLiteral("a"));
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

namespace {

/// A host that does something while a question of the viewer's waits for its answer.
class BusyHost : public ScriptedDesktop {
public:
    std::function<void()> meanwhile;

    Answer ShowMessage(QWidget* owner, const QString& text, const QString& caption,
                       MessageButtons buttons) override {
        if (const auto once = std::exchange(meanwhile, {})) once();
        return ScriptedDesktop::ShowMessage(owner, text, caption, buttons);
    }
};

} // namespace

TEST_F(ViewerListTest, AViewerMadeAgainWhileTheKilledOnesQuestionIsOpenStaysOpen) {
    BusyHost host;
    const ScopedDesktop busy(host);
    host.meanwhile = [this] { Make(QStringLiteral("a")); };
    Make(QStringLiteral("a"));
    const QPointer<GraphForm> killed = Viewer(QStringLiteral("a"));
    killed->SetModified(true);
    charts.QmKillGraph(QStringLiteral("a"));
    EXPECT_EQ(host.messages.size(), 1);
    EXPECT_TRUE(killed.isNull());
    ASSERT_NE(Viewer(QStringLiteral("a")), nullptr);
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
}

TEST_F(ViewerListTest, AViewerMadeAgainWhileTheOldOnePrintsStaysOpen) {
    const QTemporaryDir folder;
    desktop.printers = {QStringLiteral("office")};
    desktop.printerFile = folder.filePath(QStringLiteral("page.pdf"));
    desktop.chosenPrinter = desktop.printer = QStringLiteral("office");
    desktop.settle = [this](QPrinter&) {
        charts.QmKillGraph(QStringLiteral("a"));
        Make(QStringLiteral("a"));
    };
    charts.QmPrintGraph(QStringLiteral("a"), 3, 2, data, rowLabels, columnLabels, title, rowTitle,
                        columnTitle, valueTitle);
    EXPECT_EQ(desktop.printDialogs, 1);
    ASSERT_NE(Viewer(QStringLiteral("a")), nullptr);
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
}
