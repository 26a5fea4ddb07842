#include "viewer/Snapshot.h"

#include "chartcontrol/widget/ChartControl.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "text/LocalText.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerStatusBar.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

using namespace QmChart6;

namespace {

class SnapshotTest : public testing::Test {
protected:
    SnapshotTest() {
        SetLanguageCode(0);
        form.ChartImage().Model().SetGridSize(2, 2);
        QGuiApplication::clipboard()->setText(QStringLiteral("the host's"));
    }
    ~SnapshotTest() override { QDir::setCurrent(before); }

    [[nodiscard]] static bool ClipboardIsEmpty() {
        const QMimeData* content = QGuiApplication::clipboard()->mimeData();
        return content == nullptr || content->formats().isEmpty();
    }
    [[nodiscard]] QString Status() const { return form.findChild<ViewerStatusBar*>()->Panel(4).Text(); }
    [[nodiscard]] QString InFolder(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QTemporaryDir folder;
    QString before = QDir::currentPath();
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    GraphForm form;
};

/// A desktop whose picker leaves the process in another directory, as some do.
class WanderingDesktop : public ScriptedDesktop {
public:
    std::optional<QString> PickSaveFile(QWidget* owner, const SaveFileRequest& request) override {
        QDir::setCurrent(QDir::rootPath());
        return ScriptedDesktop::PickSaveFile(owner, request);
    }
};

} // namespace

TEST_F(SnapshotTest, WithAFileNameItAsksNothingAndOverwrites) {
    QString name = InFolder("chart.bmp");
    QFile old(name);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    SaveChartSnapshot(form, form.ChartImage(), name);
    EXPECT_TRUE(desktop.pickers.isEmpty());
    EXPECT_TRUE(desktop.messages.isEmpty());
    const QImage picture(name);
    EXPECT_EQ(picture.size(), form.ChartImage().size());
}

TEST_F(SnapshotTest, WithoutAFileNameItAsksAndTellsTheNameThatWasUsed) {
    const QString chosen = InFolder("asked.bmp");
    desktop.files = {chosen};
    QString name;
    SaveChartSnapshot(form, form.ChartImage(), name);
    ASSERT_EQ(desktop.pickers.size(), 1);
    EXPECT_EQ(desktop.pickers.front().title, "Save as .bmp");
    EXPECT_EQ(desktop.pickers.front().filter, "*.bmp");
    EXPECT_EQ(desktop.pickers.front().suffix, "bmp");
    EXPECT_EQ(name, chosen);
    EXPECT_TRUE(QFile::exists(chosen));
}

TEST_F(SnapshotTest, ANameIsProposedFromTheTitleAndEveryFormOffered) {
    const auto proposed = [this](const QString& title) {
        form.ChartImage().Model().Title.Text = title;
        QString name;
        SaveChartSnapshot(form, form.ChartImage(), name);
        return desktop.pickers.back().name;
    };
    EXPECT_EQ(proposed(QStringLiteral("Vendas de Março")), QStringLiteral("Vendas de Março"));
    EXPECT_EQ(proposed(QStringLiteral(" North/South:\n\"2024\" ")), "North South 2024");
    EXPECT_EQ(proposed(QStringLiteral("...")), "");
    EXPECT_EQ(proposed(QString()), "");
    EXPECT_EQ(proposed(QString(500, u'x')).size(), 80);
    EXPECT_EQ(desktop.pickers.back().forms, QStringList({"bmp", "png", "svg", "pdf", "emf"}));
    EXPECT_FALSE(desktop.pickers.back().formCaption.isEmpty());
}

TEST_F(SnapshotTest, AfterwardsTheClipboardIsEmptyAndTheStatusTellsSo) {
    QString name = InFolder("chart.png");
    SaveChartSnapshot(form, form.ChartImage(), name);
    EXPECT_TRUE(ClipboardIsEmpty());
    EXPECT_EQ(Status(), "Snapshot Saved");
}

TEST_F(SnapshotTest, ACancelSavesAndShowsNothingAndLeavesThePictureOnTheClipboard) {
    QString name;
    SaveChartSnapshot(form, form.ChartImage(), name);
    EXPECT_EQ(name, "");
    EXPECT_EQ(Status(), "");
    EXPECT_FALSE(ClipboardIsEmpty());
    EXPECT_NE(QGuiApplication::clipboard()->text(), "the host's");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(SnapshotTest, TheCurrentDirectoryIsTheSameAfterwardsWhereverThePersonBrowsed) {
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    const QString current = QDir::currentPath();
    WanderingDesktop wandering;
    const ScopedDesktop wander(wandering);
    wandering.files = {QStringLiteral("relative.bmp")};
    QString name;
    SaveChartSnapshot(form, form.ChartImage(), name);
    EXPECT_EQ(QDir::currentPath(), current);
    EXPECT_TRUE(QFile::exists(InFolder("relative.bmp")));
    QString cancelled;
    SaveChartSnapshot(form, form.ChartImage(), cancelled);
    EXPECT_EQ(QDir::currentPath(), current);
}

TEST_F(SnapshotTest, AFileThatCannotBeWrittenRaisesAndTellsNothing) {
    QString name = InFolder("missing/chart.bmp");
    EXPECT_RAISES(76, (SaveChartSnapshot(form, form.ChartImage(), name), 0));
    EXPECT_EQ(Status(), "");
}
