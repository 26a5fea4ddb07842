#include "viewer/GraphForm.h"

#include "base/Units.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

using namespace QmChart6;

namespace {

class GraphFormTest : public testing::Test {
protected:
    void SetUp() override { SetLanguageCode(0); }
    void TearDown() override { SetLanguageCode(0); }

    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
};

ViewerStatusBar& StatusBarOf(const GraphForm& form) {
    return *form.findChild<ViewerStatusBar*>(QStringLiteral("sbGraph"));
}
ViewerToolBar& ControlBarOf(const GraphForm& form) {
    return *form.findChild<ViewerToolBar*>(QStringLiteral("tbControlBar"));
}
QTimer& TimerOf(const GraphForm& form) {
    return *form.findChild<QTimer*>(QStringLiteral("timGraph"));
}

} // namespace

TEST_F(GraphFormTest, StartsUnmodifiedWithTheControlBarLinesOnAndMarkersOff) {
    const GraphForm form;
    EXPECT_FALSE(form.Modified());
    EXPECT_FALSE(form.Busy());
    EXPECT_TRUE(form.FirstPaintPending());
    EXPECT_TRUE(form.ControlBar());
    EXPECT_EQ(form.Look().lines, 1);
    EXPECT_EQ(form.Look().markers, 0);
    EXPECT_EQ(form.Look().stacked, 0);
    EXPECT_EQ(form.Look().fullStacked, 0);
    EXPECT_EQ(form.WindowState(), 0);
}

TEST_F(GraphFormTest, TheChartOfANewWindowIsAbout760By480BeforeItIsShown) {
    GraphForm form;
    EXPECT_EQ(form.ChartImage().width(), 760);
    EXPECT_NEAR(form.ChartImage().height(), 480, 1);
}

TEST_F(GraphFormTest, TheStatusPanelsAreWhereGraphIdAndConfigurationAreKept) {
    GraphForm form;
    form.SetGraphId(QStringLiteral("SALES"));
    form.SetQmConfig(QStringLiteral("Quarterly"));
    EXPECT_EQ(StatusBarOf(form).Panel(1).Text(), "SALES");
    EXPECT_EQ(StatusBarOf(form).Panel(2).Text(), "Quarterly");
    StatusBarOf(form).Panel(1).SetText(QStringLiteral("COSTS"));
    StatusBarOf(form).Panel(2).SetText(QStringLiteral("Yearly"));
    EXPECT_EQ(form.GraphId(), "COSTS");
    EXPECT_EQ(form.QmConfig(), "Yearly");
}

TEST_F(GraphFormTest, APanelKeepsATextThatIsTooLongToBeShown) {
    GraphForm form;
    const QString id(500, u'W');
    form.SetGraphId(id);
    form.show();
    EXPECT_EQ(form.GraphId(), id);
    EXPECT_LE(StatusBarOf(form).Panel(1).width(), 240);
    EXPECT_GE(StatusBarOf(form).Panel(4).width(), 60);
}

TEST_F(GraphFormTest, ASecondStatusMessageReplacesTheFirstAndThePanelIsEmptiedWhenTheTimerFires) {
    GraphForm form;
    TimerOf(form).setInterval(20);
    form.SetStatus(QStringLiteral("first"));
    form.SetStatus(QStringLiteral("second"));
    EXPECT_EQ(StatusBarOf(form).Panel(4).Text(), "second");
    EXPECT_TRUE(TimerOf(form).isActive());
    EXPECT_TRUE(QTest::qWaitFor([&] { return StatusBarOf(form).Panel(4).Text().isEmpty(); }));
    EXPECT_FALSE(TimerOf(form).isActive());
}

TEST_F(GraphFormTest, AMessageDoesNotWindTheTimerUpAgain) {
    GraphForm form;
    TimerOf(form).setInterval(1000000);
    form.SetStatus(QStringLiteral("first"));
    const int timer = TimerOf(form).timerId();
    form.SetStatus(QStringLiteral("second"));
    EXPECT_EQ(TimerOf(form).timerId(), timer);
}

TEST_F(GraphFormTest, TheStatusTimerHasTwoSeconds) {
    const GraphForm form;
    EXPECT_EQ(TimerOf(form).interval(), 2000);
    EXPECT_FALSE(TimerOf(form).isActive());
}

TEST_F(GraphFormTest, WidthAndHeightAreThoseOfTheClientAreaPlusANominalFrame) {
    GraphForm form;
    form.resize(400, 300);
    EXPECT_EQ(form.Width(), 400 * 15 + 120);
    EXPECT_EQ(form.Height(), 300 * 15 + 405);
    form.SetWidth(9120);
    form.SetHeight(6405);
    EXPECT_EQ(form.size(), QSize(600, 400));
    EXPECT_EQ(form.Width(), 9120);
    EXPECT_EQ(form.Height(), 6405);
}

TEST_F(GraphFormTest, ASmallWindowKeepsTheChartsSize) {
    GraphForm form;
    form.show();
    const QSize before = form.ChartImage().size();
    form.SetWidth(180); // a client area of 4 logical pixels
    EXPECT_EQ(form.Width(), 180);
    EXPECT_EQ(form.ChartImage().width(), before.width());
    form.SetHeight(400);
    EXPECT_EQ(form.ChartImage().height(), before.height());
    form.SetWidth(6000);
    EXPECT_EQ(form.ChartImage().width(), PixelsOfTwips(6000 - 180));
}

TEST_F(GraphFormTest, HidingTheControlBarMovesTheChartUpAndMakesItTaller) {
    GraphForm form;
    form.show();
    const QRect before = form.ChartImage().geometry();
    const int barHeight = ControlBarOf(form).height();
    form.SetControlBar(false);
    EXPECT_FALSE(form.ControlBar());
    EXPECT_FALSE(ControlBarOf(form).isVisible());
    EXPECT_EQ(form.ChartImage().y(), PixelsOfTwips(40));
    EXPECT_EQ(form.ChartImage().height(), before.height() + barHeight);
    EXPECT_FALSE(form.findChild<QAction*>(QStringLiteral("optControlBar"))->isChecked());
    form.SetControlBar(true);
    EXPECT_EQ(form.ChartImage().geometry(), before);
    EXPECT_TRUE(form.findChild<QAction*>(QStringLiteral("optControlBar"))->isChecked());
}

TEST_F(GraphFormTest, ShowingTheControlBarBringsItInStepWithTheChart) {
    GraphForm form;
    form.SetControlBar(false);
    Chart& chart = form.ChartImage().Model();
    chart.SetGridSize(3, 2);
    chart.ShowLegend = true;
    chart.SetDataSeriesInRow(true);
    chart.SetChartType(ChartType::Line3D);
    EXPECT_FALSE(ControlBarOf(form).Button(BarButton::Legend)->isChecked());
    form.SetControlBar(true);
    EXPECT_TRUE(ControlBarOf(form).Button(BarButton::Legend)->isChecked());
    EXPECT_TRUE(ControlBarOf(form).Button(BarButton::Flip)->isChecked());
    EXPECT_TRUE(ControlBarOf(form).Button(BarButton::ThreeD)->isChecked());
    EXPECT_EQ(ControlBarOf(form).TypeSelector()->currentText(), "Line");
    EXPECT_EQ(ControlBarOf(form).TypeSelector()->count(), 7);
    EXPECT_FALSE(form.Busy());
    EXPECT_FALSE(form.Modified());
}

TEST_F(GraphFormTest, TheFirstPaintBringsTheControlBarInStep) {
    GraphForm form;
    form.ChartImage().Model().SetGridSize(2, 1);
    EXPECT_EQ(ControlBarOf(form).TypeSelector()->count(), 0);
    form.grab();
    EXPECT_FALSE(form.FirstPaintPending());
    EXPECT_EQ(ControlBarOf(form).TypeSelector()->count(), 5);
}

TEST_F(GraphFormTest, TheControlBarHasTenPlacesWithTheirToolTips) {
    SetLanguageCode(1);
    const GraphForm form;
    const ViewerToolBar& bar = ControlBarOf(form);
    ASSERT_EQ(bar.actions().size(), 10);
    EXPECT_TRUE(bar.Button(BarButton::Separator)->isSeparator());
    const std::pair<BarButton, TextKey> keys[] = {{BarButton::ThreeD, TextKey::In3D},
                                                  {BarButton::Stack, TextKey::Stack},
                                                  {BarButton::FullStack, TextKey::FullStack},
                                                  {BarButton::Flip, TextKey::Flip},
                                                  {BarButton::Legend, TextKey::Legend},
                                                  {BarButton::Load, TextKey::LoadConfiguration},
                                                  {BarButton::Save, TextKey::SaveConfiguration},
                                                  {BarButton::Print, TextKey::Print}};
    for (const auto& [button, key] : keys) EXPECT_EQ(bar.Button(button)->toolTip(), LocalText(key));
    EXPECT_EQ(bar.TypeSelector()->toolTip(), LocalText(TextKey::ChartType));
    EXPECT_EQ(bar.TypeSelector()->parentWidget()->width(), PixelsOfTwips(2500));
    EXPECT_EQ(StatusBarOf(form).Panel(1).toolTip(), LocalText(TextKey::ChartName));
    EXPECT_EQ(StatusBarOf(form).Panel(2).toolTip(), LocalText(TextKey::ConfigurationName));
    EXPECT_EQ(StatusBarOf(form).Panel(4).toolTip(), LocalText(TextKey::Status));
}

TEST_F(GraphFormTest, EveryButtonHasAPictureOfItsOwn) {
    const GraphForm form;
    QList<QImage> pictures;
    for (const QAction* action : ControlBarOf(form).actions()) {
        if (action->isSeparator() || action->objectName().isEmpty()) continue;
        const QImage picture = action->icon().pixmap(24, 24).toImage();
        EXPECT_FALSE(picture.isNull()) << action->objectName().toStdString();
        EXPECT_FALSE(pictures.contains(picture)) << action->objectName().toStdString();
        pictures.append(picture);
    }
    EXPECT_EQ(pictures.size(), 8);
}

TEST_F(GraphFormTest, TheMenuHasItsCaptionsInTheLanguageOfItsTime) {
    const std::pair<const char*, TextKey> keys[] = {{"optChart", TextKey::GraphProperties},
                                                    {"optControlBar", TextKey::ControlBar},
                                                    {"optPrint", TextKey::Printer},
                                                    {"optSaveBMP", TextKey::BmpFile},
                                                    {"optCopy", TextKey::Clipboard},
                                                    {"optLoadConfig", TextKey::LoadConfiguration},
                                                    {"optSaveConfig", TextKey::SaveConfiguration}};
    for (std::int16_t language = 0; language <= 3; ++language) {
        SetLanguageCode(language);
        const GraphForm form;
        for (const auto& [name, key] : keys)
            EXPECT_EQ(form.findChild<QAction*>(QLatin1String(name))->text().remove(u'&'), LocalText(key));
        EXPECT_EQ(form.findChild<QMenu*>(QStringLiteral("optSendTo"))->title().remove(u'&'),
                  LocalText(TextKey::SendTo));
        EXPECT_EQ(form.findChild<QAction*>(QStringLiteral("optSaveConfigAs"))->text().remove(u'&'),
                  LocalText(TextKey::SaveConfigurationAs) + "...");
    }
}

TEST_F(GraphFormTest, EveryEntryOfAMenuHasAMnemonicOfItsOwn) {
    for (std::int16_t language = 0; language <= 3; ++language) {
        SetLanguageCode(language);
        const GraphForm form;
        for (const char* name : {"mProperties", "optSendTo"}) {
            QStringList keys;
            for (const QAction* entry : form.findChild<QMenu*>(QLatin1String(name))->actions()) {
                if (entry->isSeparator() || !entry->isVisible()) continue;
                const qsizetype mark = entry->text().indexOf(u'&');
                ASSERT_GE(mark, 0) << entry->text().toStdString();
                keys.append(entry->text().mid(mark + 1, 1).toLower());
            }
            EXPECT_GE(keys.size(), 4);
            EXPECT_EQ(keys.removeDuplicates(), 0) << name << ' ' << language;
        }
    }
}

TEST_F(GraphFormTest, KeysOfTheWholeWindowStandBesideTheirEntries) {
    const GraphForm form;
    for (const auto& [name, keys] : {std::pair("optCopy", "Ctrl+C"), std::pair("optSaveBMP", "Ctrl+S"),
                                     std::pair("optPrint", "Ctrl+P"), std::pair("optKeys", "F1")}) {
        const auto* entry = form.findChild<QAction*>(QLatin1String(name));
        ASSERT_NE(entry, nullptr) << name;
        EXPECT_EQ(entry->shortcut(), QKeySequence(QLatin1String(keys)));
        EXPECT_TRUE(entry->isShortcutVisibleInContextMenu());
    }
}

TEST_F(GraphFormTest, TheKeysOfTheWindowDoWhatTheirEntriesDo) {
    GraphForm form;
    form.ChartImage().Model().SetGridSize(2, 2);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    desktop.ClearClipboard();
    QTest::keyClick(&form, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(desktop.Clipboard()->formats().isEmpty());
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.pickers.size(), 1);
    desktop.printer = QStringLiteral("paper");
    QTest::keyClick(&form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(desktop.printDialogs, 1);
    form.SetModified(false);
}

TEST_F(GraphFormTest, TheCardNamesEveryKeyInEveryLanguage) {
    /// Reads the card in place of a person.
    class ReadingDesktop : public ScriptedDesktop {
    public:
        void RunModal(QDialog& dialog) override {
            title = dialog.windowTitle();
            for (const QLabel* line : dialog.findChildren<QLabel*>()) lines.append(line->text());
        }
        QString title;
        QStringList lines;
    };
    QStringList titles;
    for (std::int16_t language = 0; language <= 3; ++language) {
        SetLanguageCode(language);
        ReadingDesktop reading;
        const ScopedDesktop read(reading);
        GraphForm form;
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_F1);
        titles.append(reading.title);
        for (const char* keys : {"F1", "Ctrl+C", "Ctrl+S", "Ctrl+P", "Ctrl+Z", "Enter"})
            EXPECT_TRUE(reading.lines.contains(QLatin1String(keys))) << keys;
        for (const Hint hint : {Hint::CtrlDrag, Hint::TurnView, Hint::CopyChart})
            EXPECT_TRUE(reading.lines.contains(LocalHint(hint)));
    }
    EXPECT_EQ(titles.removeDuplicates(), 0);
}

TEST_F(GraphFormTest, ALanguageWithoutTextsRaises326) {
    SetLanguageCode(4);
    EXPECT_RAISES(326, GraphForm());
}

TEST_F(GraphFormTest, TakesTheThreeWindowStatesOnly) {
    GraphForm form;
    form.show();
    for (const int state : {2, 0, 1, 0}) {
        form.SetWindowState(state);
        EXPECT_EQ(form.WindowState(), state);
    }
    EXPECT_RAISES(380, form.SetWindowState(3));
    EXPECT_RAISES(380, form.SetWindowState(-1));
}

TEST_F(GraphFormTest, ARestoredWindowHasItsNormalSizeAtOnce) {
    GraphForm form;
    form.show();
    form.SetWidth(9120);
    form.SetHeight(6405);
    form.SetWindowState(2);
    form.SetWindowState(0);
    EXPECT_EQ(form.Width(), 9120);
    EXPECT_EQ(form.Height(), 6405);
}

TEST_F(GraphFormTest, ClosingAnUnchangedWindowAsksNothing) {
    GraphForm form;
    form.show();
    form.close();
    EXPECT_TRUE(desktop.messages.isEmpty());
}

TEST_F(GraphFormTest, ClosingAModifiedWindowAsksAndSavesOnYes) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    GraphForm form;
    form.SetQmConfig(QStringLiteral("Quarterly"));
    form.SetModified(true);
    desktop.answers = {Answer::Yes};
    form.show();
    form.close();
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_EQ(desktop.messages.front().text, "Save Current Configuration?");
    EXPECT_EQ(desktop.messages.front().title, "Save Configuration");
    EXPECT_EQ(desktop.messages.front().buttons, MessageButtons::YesNo);
    EXPECT_EQ(FillConfigurationList({}).names, QStringList(QStringLiteral("Quarterly")));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(GraphFormTest, ClosingAModifiedWindowSavesNothingOnNo) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    GraphForm form;
    form.SetModified(true);
    form.show();
    form.close();
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(FillConfigurationList({}).names.isEmpty());
    EXPECT_FALSE(form.isVisible());
}

TEST_F(GraphFormTest, TheWindowClosesAllTheSameWhereNothingCanBeSaved) {
    GraphForm form;
    form.SetModified(true);
    desktop.answers = {Answer::Yes};
    form.show();
    form.close();
    ASSERT_EQ(desktop.messages.size(), 2);
    EXPECT_TRUE(desktop.messages.at(1).text.startsWith(QStringLiteral("Error 3024: ")));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(GraphFormTest, ClosingIsToldOnce) {
    GraphForm form;
    int told = 0;
    QObject::connect(&form, &GraphForm::Closed, [&] { ++told; });
    form.show();
    form.close();
    form.close();
    EXPECT_EQ(told, 1);
}

TEST_F(GraphFormTest, TheChartIsToldInTheLanguageThatTheWindowWasMadeIn) {
    QStringList told;
    for (std::int16_t language = 0; language < 4; ++language) {
        SetLanguageCode(language);
        GraphForm form;
        form.ChartImage().Model().SetGridSize(2, 1);
        const QAccessibleInterface* chart = QAccessible::queryAccessibleInterface(&form.ChartImage());
        told.append(chart->text(QAccessible::Description));
    }
    EXPECT_EQ(told,
              QStringList({QStringLiteral("Bar chart with 1 series and 2 categories, without values."),
                           QStringLiteral("Gráfico de barras com 1 série e 2 categorias, sem valores."),
                           QStringLiteral("Gráfica de barras con 1 serie y 2 categorías, sin valores."),
                           QStringLiteral("Grafico a barre con 1 serie e 2 categorie, senza valori.")}));
}
