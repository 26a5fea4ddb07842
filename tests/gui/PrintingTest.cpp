#include "automation/ViewerList.h"
#include "chartcontrol/widget/ChartControl.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/QtDesktop.h"
#include "support/Person.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerToolBar.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// A viewer on the real desktop, printed by a person who deals with the real print dialog.
class PrintingTest : public testing::Test {
protected:
    void SetUp() override {
        Chart& chart = form.ChartImage().Model();
        chart.SetGridSize(4, 2);
        chart.Title.Text = QStringLiteral("Title");
        chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
        chart.Backdrop.Fill.Brush.FillColor = {200, 220, 255};
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        auto text = std::make_unique<QMimeData>();
        text->setText(QStringLiteral("before"));
        desktop.SetClipboard(std::move(text));
    }
    void ClickPrint() {
        auto& bar = *form.findChild<ViewerToolBar*>();
        QTest::mouseClick(bar.widgetForAction(bar.Button(BarButton::Print)), Qt::LeftButton);
    }
    [[nodiscard]] QByteArray Page() const {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QtDesktop desktop;
    ScopedDesktop scope{desktop};
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("page.pdf"));
    GraphForm form;
};

} // namespace

TEST_F(PrintingTest, ThePrintDialogPrintsIntoAFileAndTheChartStaysAsItIs) {
    const Chart before = form.ChartImage().Model();
    const QImage picture = form.ChartImage().grab().toImage();
    Person<QPrintDialog> person([this](QPrintDialog& dialog) {
        for (QComboBox* choice : dialog.findChildren<QComboBox*>())
            if (const int file = choice->findText(QStringLiteral("PDF"), Qt::MatchContains); file >= 0)
                choice->setCurrentIndex(file);
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        ASSERT_NE(edit, nullptr);
        edit->setText(name);
        dialog.accept();
    });
    ClickPrint();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(Page().startsWith("%PDF"));
    EXPECT_EQ(form.ChartImage().Model(), before);
    EXPECT_EQ(form.ChartImage().grab().toImage(), picture);
    EXPECT_TRUE(desktop.Clipboard() == nullptr || desktop.Clipboard()->formats().isEmpty());
    EXPECT_FALSE(form.Modified());
}

TEST_F(PrintingTest, ACancelledPrintDialogChangesNothing) {
    if (QGuiApplication::platformName() == QLatin1String("wayland"))
        GTEST_SKIP() << "there, only a window that a person just used may fill the clipboard";
    const Chart before = form.ChartImage().Model();
    Person<QPrintDialog> person([](QPrintDialog& dialog) { dialog.reject(); });
    ClickPrint();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(Page(), QByteArray());
    EXPECT_EQ(form.ChartImage().Model(), before);
    EXPECT_EQ(desktop.Clipboard()->text(), "before");
}

TEST(PrintingViewer, MayBeKilledWhileItsPrintDialogIsOpen) {
    QtDesktop desktop;
    const ScopedDesktop scope(desktop);
    const QPointer<GraphForm> viewer(CreateViewer(QStringLiteral("A")).get());
    viewer->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.data()));
    Person<QPrintDialog> person([](QPrintDialog& dialog) {
        const QPointer<QPrintDialog> open(&dialog);
        CloseViewer(QStringLiteral("A"));
        QTest::qWait(0); // lets the dialog's own loop turn over
        ASSERT_FALSE(open.isNull());
        dialog.reject();
    });
    viewer->findChild<QAction*>(QStringLiteral("optPrint"))->trigger();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewer.isNull(); }));
}
