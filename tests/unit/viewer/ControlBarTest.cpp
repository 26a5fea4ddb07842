#include "viewer/GraphForm.h"

#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "text/LocalText.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QTest>

using namespace QmChart6;

namespace {

/// A desktop on which every dialog is cancelled at once, and counted.
class CancellingDesktop : public ScriptedDesktop {
public:
    void RunModal(QDialog& dialog) override {
        ++opened;
        dialog.reject();
    }
    int opened = 0;
};

/// A viewer on the desktop; its control bar is used with the mouse.
class ControlBarTest : public testing::Test {
protected:
    ControlBarTest() {
        SetLanguageCode(0);
        SetConfigurationFolder(store.Folder());
        form.emplace();
    }
    ~ControlBarTest() override { form->SetModified(false); }

    void Open(int rows, int columns, ChartType type = ChartType::Bar2D) {
        Model().SetGridSize(rows, columns);
        Model().SetChartType(type);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&*form));
        form->RefreshControlBar();
    }
    [[nodiscard]] Chart& Model() { return form->ChartImage().Model(); }
    [[nodiscard]] ViewerToolBar& Bar() const {
        return *form->findChild<ViewerToolBar*>(QStringLiteral("tbControlBar"));
    }
    [[nodiscard]] QComboBox& Selector() const { return *Bar().TypeSelector(); }
    [[nodiscard]] QStringList Listed() const {
        QStringList texts;
        for (int index = 0; index < Selector().count(); ++index) texts.append(Selector().itemText(index));
        return texts;
    }
    [[nodiscard]] bool IsPressed(BarButton button) const { return Bar().IsPressed(button); }
    [[nodiscard]] bool IsEnabled(BarButton button) const { return Bar().Button(button)->isEnabled(); }

    void Click(BarButton button) const {
        QTest::mouseClick(Bar().widgetForAction(Bar().Button(button)), Qt::LeftButton);
    }
    /// Opens the selector and clicks an item, as the mouse does.
    void Choose(const QString& text) const {
        Selector().showPopup(); // a click that opens it would have the next one wait for the double click
        QAbstractItemView& items = *Selector().view();
        ASSERT_TRUE(QTest::qWaitFor([&] { return items.isVisible(); }));
        const QModelIndex item = items.model()->index(Selector().findText(text), 0);
        ASSERT_TRUE(item.isValid()) << text.toStdString();
        QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(item).center());
        ASSERT_TRUE(QTest::qWaitFor([&] { return !items.isVisible(); }));
    }
    void Menu(const char* name) const { form->findChild<QAction*>(QLatin1String(name))->trigger(); }

    TestStore store{Engine::Sqlite, ConfigurationSchema()};
    CancellingDesktop desktop;
    ScopedDesktop scope{desktop};
    std::optional<GraphForm> form;
};

constexpr BarButton OptionButtons[] = {BarButton::ThreeD, BarButton::Stack, BarButton::FullStack,
                                       BarButton::Flip, BarButton::Legend};
const QStringList SevenTypes{"Bar", "Line", "Area", "Step", "Combination", "Pie", "XY (Scatter)"};

} // namespace

TEST_F(ControlBarTest, OneColumnListsPieWhileThreeDIsReleasedOnly) {
    Open(4, 1);
    EXPECT_EQ(Listed(), QStringList({"Bar", "Line", "Area", "Step", "Pie"}));
    Click(BarButton::ThreeD);
    EXPECT_EQ(Listed(), QStringList({"Bar", "Line", "Area", "Step"}));
    Click(BarButton::ThreeD);
    EXPECT_EQ(Listed(), QStringList({"Bar", "Line", "Area", "Step", "Pie"}));
}

TEST_F(ControlBarTest, SeveralColumnsListSevenTypesAlways) {
    Open(4, 2);
    EXPECT_EQ(Listed(), SevenTypes);
    Click(BarButton::ThreeD);
    EXPECT_EQ(Listed(), SevenTypes);
}

TEST_F(ControlBarTest, EveryTypeOfEveryListIsGivenToTheChart) {
    for (const int columns : {1, 2}) {
        Open(4, columns);
        for (const bool threeD : {false, true}) {
            if (IsPressed(BarButton::ThreeD) != threeD) Click(BarButton::ThreeD);
            for (const QString& text : Listed()) {
                Choose(text);
                const int plain = static_cast<int>(SevenTypes.indexOf(text)) * 2 + (threeD ? 0 : 1);
                const int expected = text == "Pie" ? 14 : text == "XY (Scatter)" ? 16 : plain;
                EXPECT_EQ(static_cast<int>(Model().chartType()), expected) << text.toStdString();
                EXPECT_EQ(form->Selected(), expected) << text.toStdString();
            }
            Choose(QStringLiteral("Bar"));
        }
        Click(BarButton::ThreeD);
    }
}

TEST_F(ControlBarTest, EveryTypeIsShownByTheBar) {
    for (const int columns : {1, 2}) {
        Open(4, columns);
        for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}) {
            if (columns == 1 && (type == 8 || type == 9 || type == 16)) continue;
            Model().SetChartType(ToChartType(type));
            const Chart before = Model();
            form->RefreshControlBar();
            EXPECT_EQ(form->Selected(), type);
            EXPECT_EQ(IsPressed(BarButton::ThreeD), type < 14 && type % 2 == 0) << type;
            EXPECT_EQ(Model(), before) << type;
        }
    }
    EXPECT_FALSE(form->Modified());
}

TEST_F(ControlBarTest, ThreeDChangesTheTypeThatIsSelected) {
    Open(4, 2, ChartType::Area2D);
    Click(BarButton::ThreeD);
    EXPECT_EQ(Model().chartType(), ChartType::Area3D);
    EXPECT_EQ(Selector().currentText(), "Area");
    Click(BarButton::ThreeD);
    EXPECT_EQ(Model().chartType(), ChartType::Area2D);
}

TEST_F(ControlBarTest, ThreeDOnAPieOfOneColumnGivesBarsInColumns) {
    Open(4, 1);
    Choose(QStringLiteral("Pie"));
    Click(BarButton::ThreeD);
    EXPECT_EQ(Model().chartType(), ChartType::Bar3D);
    EXPECT_EQ(Selector().currentText(), "Bar");
    EXPECT_FALSE(IsPressed(BarButton::Flip));
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
}

TEST_F(ControlBarTest, APieOfOneColumnIsInRowsAndBarsAreInColumnsAgain) {
    Open(4, 1);
    Choose(QStringLiteral("Pie"));
    EXPECT_TRUE(IsPressed(BarButton::Flip));
    EXPECT_FALSE(IsEnabled(BarButton::Flip));
    EXPECT_TRUE(Model().Plot.DataSeriesInRow);
    EXPECT_EQ(Model().Plot.SeriesCollection.Count(), 4);
    Choose(QStringLiteral("Bar"));
    EXPECT_FALSE(IsPressed(BarButton::Flip));
    EXPECT_FALSE(IsEnabled(BarButton::Flip));
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
    EXPECT_EQ(Model().Plot.SeriesCollection.Count(), 1);
}

TEST_F(ControlBarTest, APieOfOneColumnShowsTheLegendThatItsButtonSays) {
    Open(4, 1);
    Choose(QStringLiteral("Pie"));
    EXPECT_FALSE(Model().ShowLegend);
    EXPECT_FALSE(IsPressed(BarButton::Legend));
    Click(BarButton::Legend);
    EXPECT_TRUE(Model().ShowLegend);
    Choose(QStringLiteral("Bar"));
    EXPECT_TRUE(Model().ShowLegend);
    EXPECT_TRUE(IsPressed(BarButton::Legend));
}

TEST_F(ControlBarTest, ARightClickOnAnyButtonShowsTheMenuAlsoWhereItIsDisabled) {
    Open(4, 1);
    auto& menu = *form->findChild<ViewerMenu*>();
    for (const BarButton button :
         {BarButton::Flip, BarButton::FullStack, BarButton::Legend, BarButton::Print}) {
        const QWidget* widget = Bar().widgetForAction(Bar().Button(button));
        const QPoint place = widget->mapTo(&*form, widget->rect().center());
        QTest::mouseClick(form->windowHandle(), Qt::RightButton, {}, place);
        EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }, 500)) << static_cast<int>(button);
        menu.close();
    }
    EXPECT_FALSE(menu.optGenericProperties->isVisible());
}

TEST_F(ControlBarTest, NobodyFlipsOneColumnByHand) {
    Open(4, 1);
    EXPECT_FALSE(IsEnabled(BarButton::Flip));
    Click(BarButton::Flip);
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
    EXPECT_FALSE(form->Modified());
    Model().SetGridSize(4, 3);
    form->RefreshControlBar();
    EXPECT_TRUE(IsEnabled(BarButton::Flip));
}

TEST_F(ControlBarTest, APieOfSeveralColumnsLeavesFlipAlone) {
    Open(4, 2);
    Choose(QStringLiteral("Pie"));
    EXPECT_FALSE(IsPressed(BarButton::Flip));
    EXPECT_TRUE(IsEnabled(BarButton::Flip));
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
}

TEST_F(ControlBarTest, ChoosingATypeMovesTheLabelsToWhereItHasThem) {
    Open(4, 2);
    DataPointLabel& label = Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.LocationType = LabelLocation::AbovePoint;
    Choose(QStringLiteral("Pie"));
    EXPECT_EQ(label.LocationType, LabelLocation::Outside);
    Choose(QStringLiteral("Bar"));
    EXPECT_EQ(label.LocationType, LabelLocation::AbovePoint);
}

TEST_F(ControlBarTest, ChoosingAnotherTypeModifiesAndTheSameDoesNot) {
    Open(4, 2);
    Choose(QStringLiteral("Bar"));
    EXPECT_FALSE(form->Modified());
    Choose(QStringLiteral("Line"));
    EXPECT_TRUE(form->Modified());
}

TEST_F(ControlBarTest, StackSwitchesStackingAndAllowsShares) {
    Open(4, 2);
    EXPECT_FALSE(IsEnabled(BarButton::FullStack));
    Click(BarButton::Stack);
    EXPECT_TRUE(Model().Stacking);
    EXPECT_EQ(form->Look().stacked, 1);
    EXPECT_TRUE(IsEnabled(BarButton::FullStack));
    EXPECT_EQ(form->Look().fullStacked, 0);
    Click(BarButton::Stack);
    EXPECT_FALSE(Model().Stacking);
    EXPECT_EQ(form->Look().stacked, 0);
    EXPECT_FALSE(IsEnabled(BarButton::FullStack));
}

TEST_F(ControlBarTest, FullStackSwitchesBothValueAxesToShares) {
    Open(4, 2);
    Click(BarButton::Stack);
    Click(BarButton::FullStack);
    EXPECT_EQ(form->Look().fullStacked, 1);
    for (const AxisId id : {AxisId::Y, AxisId::SecondaryY}) {
        EXPECT_EQ(Model().Plot.Axis(id).AxisScale.Type, ScaleType::Percent);
        EXPECT_EQ(Model().Plot.Axis(id).Labels.Item(1).Format, "0%");
    }
}

TEST_F(ControlBarTest, ReleasingStackReleasesAndDisablesFullStackAndSwitchesTheSharesOff) {
    Open(4, 2);
    Click(BarButton::Stack);
    Click(BarButton::FullStack);
    Click(BarButton::Stack);
    EXPECT_FALSE(IsPressed(BarButton::FullStack));
    EXPECT_FALSE(IsEnabled(BarButton::FullStack));
    EXPECT_EQ(form->Look().fullStacked, 0);
    EXPECT_EQ(form->Look().stacked, 0);
    EXPECT_FALSE(Model().Stacking);
    for (const AxisId id : {AxisId::Y, AxisId::SecondaryY}) {
        EXPECT_EQ(Model().Plot.Axis(id).AxisScale.Type, ScaleType::Linear);
        EXPECT_EQ(Model().Plot.Axis(id).Labels.Item(1).Format, ValueLabelFormat());
    }
}

TEST_F(ControlBarTest, FlipExchangesSeriesAndStackingStays) {
    Open(4, 2);
    Model().Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("rows");
    Click(BarButton::Flip);
    EXPECT_TRUE(Model().Plot.DataSeriesInRow);
    EXPECT_EQ(Model().Plot.Axis(AxisId::Z).AxisTitle.Text, "rows");
    EXPECT_FALSE(Model().Stacking);
    Click(BarButton::Stack);
    Click(BarButton::Flip);
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
    EXPECT_TRUE(Model().Stacking);
    EXPECT_TRUE(IsPressed(BarButton::Stack));
}

TEST_F(ControlBarTest, LegendShowsAndHidesTheLegend) {
    Open(4, 2);
    EXPECT_TRUE(IsPressed(BarButton::Legend));
    Click(BarButton::Legend);
    EXPECT_FALSE(Model().ShowLegend);
    Click(BarButton::Legend);
    EXPECT_TRUE(Model().ShowLegend);
}

TEST_F(ControlBarTest, EveryOptionButtonModifiesAlsoWhereNothingChanged) {
    Open(4, 2);
    Click(BarButton::Stack); // which allows "100%"
    for (const BarButton button : OptionButtons) {
        Click(button);
        form->SetModified(false);
        const Chart before = Model();
        if (button == BarButton::Legend) Model().ShowLegend = true; // what the click will set
        Click(button);
        EXPECT_TRUE(form->Modified()) << static_cast<int>(button);
        if (button == BarButton::Legend) {
            EXPECT_TRUE(Model().ShowLegend);
        } else {
            EXPECT_NE(Model(), before);
        }
    }
}

TEST_F(ControlBarTest, EveryOptionButtonIsSeenInTheChartAtOnce) {
    Open(4, 2);
    for (int row = 1; row <= 4; ++row)
        for (int column = 1; column <= 2; ++column)
            Model().DataGrid.WritableColumn(column)[static_cast<std::size_t>(row - 1)] = row + 3 * column;
    Model().DataGrid.Summarize();
    form->ChartImage().Refresh();
    for (const BarButton button :
         {BarButton::Stack, BarButton::FullStack, BarButton::Flip, BarButton::Legend, BarButton::ThreeD}) {
        const QImage before = form->ChartImage().grab().toImage();
        Click(button);
        EXPECT_NE(form->ChartImage().grab().toImage(), before) << static_cast<int>(button);
    }
}

TEST_F(ControlBarTest, TheBarsLoadAndSaveClearModifiedAndTheMenusDoNot) {
    Open(4, 2);
    form->SetQmConfig(QStringLiteral("Quarterly"));
    form->SetModified(true);
    for (const char* name : {"optLoadConfig", "optSaveConfig", "optSaveConfigAs"}) Menu(name);
    EXPECT_EQ(desktop.opened, 2);
    EXPECT_EQ(FillConfigurationList({}).names, QStringList("Quarterly"));
    EXPECT_TRUE(form->Modified());
    Click(BarButton::Load);
    EXPECT_EQ(desktop.opened, 3);
    EXPECT_FALSE(form->Modified());
    form->SetModified(true);
    form->SetQmConfig(QStringLiteral("Yearly"));
    Click(BarButton::Save);
    EXPECT_EQ(FillConfigurationList({}).names, QStringList({"Quarterly", "Yearly"}));
    EXPECT_FALSE(form->Modified());
}

TEST_F(ControlBarTest, LoadAndSaveNeverModify) {
    Open(4, 2);
    Click(BarButton::Load);
    Click(BarButton::Save);
    EXPECT_FALSE(form->Modified());
}

TEST_F(ControlBarTest, AFailureIsShownAndTheWindowLivesOn) {
    Open(4, 2);
    form->SetModified(true);
    SetConfigurationFolder(QStringLiteral("/nowhere/"));
    Click(BarButton::Save);
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.front().text.startsWith(QStringLiteral("Error 3044: ")));
    EXPECT_TRUE(form->isVisible());
    Click(BarButton::Stack);
    EXPECT_TRUE(Model().Stacking);
}

TEST_F(ControlBarTest, WritingSelectedPutsBarAndChartThere) {
    Open(4, 2);
    for (const int type : {9, 8, 16, 14, 0, 3}) {
        form->SetSelected(type);
        EXPECT_EQ(form->Selected(), type);
        EXPECT_EQ(static_cast<int>(Model().chartType()), type);
    }
    form->SetSelected(9);
    EXPECT_EQ(Selector().currentText(), "Combination");
    EXPECT_FALSE(IsPressed(BarButton::ThreeD));
    form->SetSelected(8);
    EXPECT_EQ(Selector().currentText(), "Combination");
    EXPECT_TRUE(IsPressed(BarButton::ThreeD));
    EXPECT_RAISES(380, (form->SetSelected(10), 0));
    EXPECT_RAISES(380, (form->SetSelected(-1), 0));
}

TEST_F(ControlBarTest, WritingSelectedOfOneColumnFindsPieInItsPlace) {
    Open(4, 1);
    form->SetSelected(0);
    form->SetSelected(14);
    EXPECT_EQ(Selector().currentIndex(), 4);
    EXPECT_EQ(form->Selected(), 14);
    EXPECT_TRUE(Model().Plot.DataSeriesInRow);
    form->SetSelected(1);
    EXPECT_FALSE(Model().Plot.DataSeriesInRow);
}

TEST_F(ControlBarTest, TheBarFollowsTheViewersStatesAndTheChartStaysAsItIs) {
    Open(4, 2);
    LookState look = form->Look();
    look.stacked = -1;
    look.fullStacked = 1;
    form->Show(look);
    Model().ShowLegend = false;
    Model().SetDataSeriesInRow(true);
    Model().ShowLegend = false;
    const Chart before = Model();
    form->RefreshControlBar();
    EXPECT_TRUE(IsPressed(BarButton::Stack));
    EXPECT_TRUE(IsPressed(BarButton::FullStack));
    EXPECT_TRUE(IsEnabled(BarButton::FullStack));
    EXPECT_FALSE(IsPressed(BarButton::Legend));
    EXPECT_TRUE(IsPressed(BarButton::Flip));
    EXPECT_EQ(Model(), before);
    EXPECT_EQ(form->Look().stacked, -1);
    EXPECT_FALSE(form->Busy());
    EXPECT_FALSE(form->Modified());
}

TEST_F(ControlBarTest, WhileTheBarIsHiddenItIsLeftBehind) {
    Open(4, 2);
    Menu("optControlBar");
    Model().SetChartType(ChartType::Line2D);
    form->RefreshControlBar();
    EXPECT_EQ(Selector().currentText(), "Bar");
    Menu("optControlBar");
    EXPECT_EQ(Selector().currentText(), "Line");
}

TEST_F(ControlBarTest, IconsTakeTheTextColourOfThePaletteAndEveryPixelOfTheScreen) {
    const auto countOf = [this](const QColor& colour, double ratio) {
        const QImage picture = Bar().Button(BarButton::Legend)->icon().pixmap({24, 24}, ratio).toImage();
        EXPECT_EQ(picture.size(), QSize(24, 24) * ratio);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == colour) ++count;
        return count;
    };
    for (const QColor& text : {QColor(20, 30, 40), QColor(250, 240, 230)}) {
        QPalette palette = Bar().palette();
        palette.setColor(QPalette::ButtonText, text);
        Bar().setPalette(palette);
        EXPECT_GT(countOf(text, 1), 40);
        EXPECT_GT(countOf(text, 2), 200);
    }
}

TEST_F(ControlBarTest, AKindThatCannotShowSomethingTellsSoInTheStatus) {
    Open(3, 2);
    Model().DataGrid.SetValue(1, 1, -5);
    Model().DataGrid.SetValue(2, 1, -6);
    Model().DataGrid.SetValue(3, 1, 4);
    Model().DataGrid.SetValue(3, 2, 4);
    const auto& status = *form->findChild<ViewerStatusBar*>(QStringLiteral("sbGraph"));
    EXPECT_EQ(status.Panel(4).Text(), "");
    form->SetSelected(static_cast<int>(ChartType::Pie2D));
    EXPECT_EQ(status.Panel(4).Text().section(u';', 0, 0), "2 negative values have no slice");
}

TEST_F(ControlBarTest, AnXYChartThatIsChosenShowsPointsAndLeavingItTheLinesThatThereWere) {
    Open(4, 3, ChartType::Line2D);
    const auto series = [this]() -> Series& { return Model().Plot.SeriesCollection(1); };
    Choose(LocalText(TextKey::XYScatter));
    ASSERT_EQ(Model().chartType(), ChartType::XY2D);
    EXPECT_TRUE(series().SeriesMarker.Show);
    EXPECT_FALSE(series().ShowLine);
    EXPECT_EQ(form->Look().markers, 1);
    EXPECT_EQ(form->Look().lines, 0);
    form->Undo();
    EXPECT_FALSE(series().SeriesMarker.Show);
    EXPECT_TRUE(series().ShowLine);
    form->Redo();
    Choose(LocalText(TextKey::Line));
    EXPECT_FALSE(series().SeriesMarker.Show);
    EXPECT_TRUE(series().ShowLine);
    EXPECT_EQ(form->Look().lines, 1);
}

TEST_F(ControlBarTest, AnXYChartThatALookOrTheProgramAsksForKeepsItsLines) {
    Open(4, 3, ChartType::Line2D);
    form->SetSelected(static_cast<int>(ChartType::XY2D));
    EXPECT_TRUE(Model().Plot.SeriesCollection(1).ShowLine);
    EXPECT_FALSE(Model().Plot.SeriesCollection(1).SeriesMarker.Show);
}
