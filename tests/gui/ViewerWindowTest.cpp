#include "automation/ViewerList.h"
#include "base/Units.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/QtDesktop.h"
#include "qmchart6/Host.h"
#include "qmchart6/QMChartArray.h"
#include "support/Person.h"
#include "support/Samples.h"
#include "support/TestStore.h"
#include "text/LocalText.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// One viewer on the real desktop, its events going through the window as a person's would.
class ViewerWindowTest : public testing::Test {
protected:
    ViewerWindowTest() {
        QMChartArray().QmMakeGraph(QStringLiteral("sales"), 4, 2, Numbers(4, 2),
                                   Names(QStringLiteral("row"), 4), Names(QStringLiteral("column"), 2),
                                   QStringLiteral("Title"), QStringLiteral("Rows"), QStringLiteral("Columns"),
                                   QStringLiteral("Values"));
        QString id = QStringLiteral("sales");
        viewer = FindViewer(id).get();
    }
    ~ViewerWindowTest() override {
        if (!viewer.isNull()) viewer->SetModified(false);
        CloseViewer(QStringLiteral("sales"));
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.data())); }

    template<class T>
    [[nodiscard]] T& Part(const char* name) const {
        return *viewer->findChild<T*>(QLatin1String(name));
    }
    [[nodiscard]] QMenu& Menu() const { return Part<ViewerMenu>("mProperties"); }
    [[nodiscard]] QPoint ChartCenter() const { return viewer->ChartImage().geometry().center(); }

    void ShowMenu() {
        QTest::mouseClick(viewer->windowHandle(), Qt::RightButton, {}, ChartCenter());
        ASSERT_TRUE(QTest::qWaitFor([this] { return Menu().isVisible(); }));
    }
    /// Chooses an entry of the open menu, or of its submenu, as the mouse does.
    void Choose(const char* name) {
        auto* entry = viewer->findChild<QAction*>(QLatin1String(name));
        QMenu* menu = &Menu();
        if (!menu->actions().contains(entry)) {
            auto* sub = viewer->findChild<QMenu*>(QStringLiteral("optSendTo"));
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(sub->menuAction()).center());
            ASSERT_TRUE(QTest::qWaitFor([sub] { return sub->isVisible(); }));
            menu = sub;
        }
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }

    QtDesktop desktop;
    ScopedDesktop scope{desktop};
    QPointer<GraphForm> viewer;
};

} // namespace

TEST_F(ViewerWindowTest, ARightClickOnTheChartShowsTheContextMenu) {
    ShowMenu();
    EXPECT_FALSE(Part<QAction>("optGenericProperties").isVisible());
    EXPECT_TRUE(Part<QAction>("optControlBar").isChecked());
    QTest::keyClick(&Menu(), Qt::Key_Escape);
    EXPECT_FALSE(Menu().isVisible());
}

TEST_F(ViewerWindowTest, ARightClickOutsideTheChartShowsTheMenuToo) {
    const QPoint onStatusBar = Part<ViewerStatusBar>("sbGraph").geometry().center();
    QTest::mouseClick(viewer->windowHandle(), Qt::RightButton, {}, onStatusBar);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Menu().isVisible(); }));
    Menu().close();
}

TEST_F(ViewerWindowTest, ALeftClickShowsNoMenu) {
    QTest::mouseClick(viewer->windowHandle(), Qt::LeftButton, {}, ChartCenter());
    QApplication::processEvents();
    EXPECT_FALSE(Menu().isVisible());
}

TEST_F(ViewerWindowTest, TheMenuHidesAndShowsTheControlBar) {
    const QRect before = viewer->ChartImage().geometry();
    ShowMenu();
    Choose("optControlBar");
    EXPECT_FALSE(viewer->ControlBar());
    EXPECT_EQ(viewer->ChartImage().y(), PixelsOfTwips(40));
    EXPECT_GT(viewer->ChartImage().height(), before.height());
    ShowMenu();
    EXPECT_FALSE(Part<QAction>("optControlBar").isChecked());
    Choose("optControlBar");
    EXPECT_TRUE(viewer->ControlBar());
    EXPECT_EQ(viewer->ChartImage().geometry(), before);
}

TEST_F(ViewerWindowTest, TheClipboardEntryLeavesThePictureOnTheClipboard) {
    if (QGuiApplication::platformName() == QLatin1String("wayland"))
        GTEST_SKIP() << "there, only a window that a person just used may fill the clipboard";
    desktop.ClearClipboard();
    ShowMenu();
    Choose("optCopy");
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const QMimeData* content = desktop.Clipboard();
        return content != nullptr && !content->formats().isEmpty();
    }));
}

TEST_F(ViewerWindowTest, TheFileEntrySavesUnderTheChosenName) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("chart"));
    Person<QFileDialog> person([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save as .bmp");
        dialog.findChild<QLineEdit*>()->setText(name);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    ShowMenu();
    Choose("optSaveBMP");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(name + QStringLiteral(".bmp")); }));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(Part<ViewerStatusBar>("sbGraph").Panel(4).Text(), LocalText(TextKey::SnapshotSaved));
}

TEST_F(ViewerWindowTest, AnExistingFileIsAskedAboutBeforeItIsOverwritten) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("chart.bmp"));
    QFile old(name);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();

    bool askedTwice = false;
    Person<QFileDialog> person([&](QFileDialog& dialog) {
        Person<QMessageBox> second([&](QMessageBox& box) {
            askedTwice = true;
            QTest::mouseClick(static_cast<QWidget*>(box.button(QMessageBox::No)), Qt::LeftButton);
        });
        dialog.findChild<QLineEdit*>()->setText(name);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
        dialog.reject();
    });
    ShowMenu();
    Choose("optSaveBMP");
    EXPECT_TRUE(QTest::qWaitFor([&] { return askedTwice && QApplication::activeModalWidget() == nullptr; }));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
    EXPECT_EQ(Part<ViewerStatusBar>("sbGraph").Panel(4).Text(), "");
}

TEST_F(ViewerWindowTest, AnErrorOfAClickIsShownAndTheViewerLivesOn) {
    SetConfigurationFolder(QStringLiteral("/nowhere/"));
    QString shown;
    Person<QMessageBox> person([&](QMessageBox& box) {
        shown = box.text();
        QTest::mouseClick(static_cast<QWidget*>(box.button(QMessageBox::Ok)), Qt::LeftButton);
    });
    ShowMenu();
    Choose("optSaveConfig");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return person.WasAsked() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_TRUE(shown.startsWith(QStringLiteral("Error 3044: "))) << shown.toStdString();
    EXPECT_TRUE(viewer->isVisible());
}

TEST_F(ViewerWindowTest, AStatusMessageGoesAwayWhenTheTimerFires) {
    Part<QTimer>("timGraph").setInterval(30);
    viewer->SetStatus(QStringLiteral("first"));
    viewer->SetStatus(QStringLiteral("second"));
    EXPECT_EQ(Part<ViewerStatusBar>("sbGraph").Panel(4).Text(), "second");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Part<ViewerStatusBar>("sbGraph").Panel(4).Text().isEmpty(); }));
}

TEST_F(ViewerWindowTest, ResizingKeepsTheMarginsEven) {
    for (const QSize size : {QSize(500, 400), QSize(901, 703), QSize(333, 222)}) {
        viewer->resize(size);
        QApplication::processEvents();
        const QRect chart = viewer->ChartImage().geometry();
        const QRect status = Part<ViewerStatusBar>("sbGraph").geometry();
        const QRect bar = Part<ViewerToolBar>("tbControlBar").geometry();
        EXPECT_EQ(chart.left(), 2);
        EXPECT_EQ(viewer->width() - chart.right() - 1, 2);
        EXPECT_NEAR(chart.top() - bar.bottom() - 1, 2, 1);
        EXPECT_NEAR(status.top() - chart.bottom() - 1, 2, 1);
        EXPECT_EQ(status.bottom() + 1, viewer->height());
    }
}

TEST_F(ViewerWindowTest, AWindowTooSmallKeepsTheChartsSize) {
    viewer->resize(400, 300);
    QApplication::processEvents();
    const QSize before = viewer->ChartImage().size();
    viewer->resize(4, 20);
    QApplication::processEvents();
    EXPECT_EQ(viewer->ChartImage().size(), before);
}

TEST_F(ViewerWindowTest, ClosingAnUnchangedWindowAsksNothing) {
    viewer->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
    QString id = QStringLiteral("sales");
    EXPECT_EQ(FindViewer(id), nullptr);
}

TEST_F(ViewerWindowTest, ClosingAModifiedWindowAsksAndSavesOnYes) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    viewer->SetModified(true);
    QString text;
    QString title;
    Person<QMessageBox> person([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        QTest::mouseClick(static_cast<QWidget*>(box.button(QMessageBox::Yes)), Qt::LeftButton);
    });
    viewer->close();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(text, "Save Current Configuration?");
    EXPECT_EQ(title, "Save Configuration");
    EXPECT_EQ(store.Count(QStringLiteral("ChartConfigurations")), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
}

TEST_F(ViewerWindowTest, AnswerNoClosesWithoutSaving) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    viewer->SetModified(true);
    Person<QMessageBox> person([](QMessageBox& box) {
        QTest::mouseClick(static_cast<QWidget*>(box.button(QMessageBox::No)), Qt::LeftButton);
    });
    viewer->close();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(store.Count(QStringLiteral("ChartConfigurations")), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
}

TEST_F(ViewerWindowTest, AViewerMayBeKilledWhileItsOwnQuestionIsOpen) {
    viewer->SetModified(true);
    Person<QMessageBox> person([](QMessageBox& box) {
        const QPointer<QMessageBox> open(&box);
        QMChartArray().QmKillGraph(QStringLiteral("sales"));
        QTest::qWait(0); // lets the question's own loop turn over
        ASSERT_FALSE(open.isNull());
        QTest::mouseClick(static_cast<QWidget*>(box.button(QMessageBox::No)), Qt::LeftButton);
    });
    viewer->close();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(QTest::qWaitFor([this] { return viewer.isNull(); }));
}

TEST_F(ViewerWindowTest, PumpingHandlesEvents) {
    Part<QTimer>("timGraph").setInterval(1);
    viewer->SetStatus(QStringLiteral("soon gone"));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        PumpEvents(5);
        return Part<ViewerStatusBar>("sbGraph").Panel(4).Text().isEmpty();
    }));
}

TEST_F(ViewerWindowTest, RunningReturnsAtOnceWhereNobodyCouldCloseAViewer) {
    if (HasDisplay()) GTEST_SKIP() << "somebody could";
    RunUntilViewersAreClosed();
    EXPECT_TRUE(viewer->isVisible());
}
