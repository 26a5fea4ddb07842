#include "dialogs/GraphTypes.h"
#include "dialogs/SampleOf.h"

#include "DialogsTest.h"
#include "chart/ChartFunctions.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/widget/ChartControl.h"
#include "support/Raises.h"
#include "support/SampleCharts.h"
#include "support/TestViewer.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <array>

using namespace QmChart6;

namespace {

class GraphTypesTest : public DialogsTest {
protected:
    GraphTypesTest() { Give(12, 3); }

    void Give(int rows, int columns) {
        Chart chart = Samples::ChartOf(rows, columns, [](int row, int column) { return row * column; });
        // What opening the dialog does to any chart, done before, so that charts can be compared.
        for (Series& series : chart.Plot.SeriesCollection)
            series.DataPoints.Item(DataPoints::All).Marker.Size = 10;
        viewer.Model() = chart;
    }

    Chart& Model() { return viewer.Model(); }
    DataPointLabel& Label(int series) {
        return Model().Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).DataPointLabel;
    }
    static Chart& Sample(QDialog& form) { return The<ChartControl>(form, "SampleChart").Model(); }
    static QListWidget& Kinds(QDialog& form) { return The<QListWidget>(form, "LChTypes"); }
    static QStringList KindTexts(QDialog& form) {
        QStringList texts;
        for (int row = 0; row < Kinds(form).count(); ++row) texts.append(Kinds(form).item(row)->text());
        return texts;
    }

    void Edit(std::deque<DealingDesktop::Deal> deals) {
        desktop.deals = std::move(deals);
        const auto expected = desktop.shown + static_cast<int>(desktop.deals.size());
        dialog.Execute(viewer);
        EXPECT_EQ(desktop.shown, expected);
    }

    TestViewer viewer;
    GraphTypes dialog{nullptr};
};

} // namespace

TEST_F(GraphTypesTest, AOneColumnChartOffersNoCombinationAndNoXYAndItsFifthKindIn2DIsPie) {
    Give(4, 1);
    Edit({[this](QDialog& form) {
        EXPECT_EQ(KindTexts(form), QStringList({"Bar", "Line", "Area", "Step", "Pie"}));
        Kinds(form).setCurrentRow(4);
        EXPECT_EQ(dialog.Selected(), 14);
        The<QRadioButton>(form, "RB3d").click();
        EXPECT_EQ(KindTexts(form), QStringList({"Bar (Column)", "Line (Tape)", "Area", "Step"}));
        EXPECT_EQ(Kinds(form).currentRow(), 0);
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, SwitchingFrom2DXYTo3DFallsBackToBar) {
    Model().SetChartType(ChartType::XY2D);
    Edit({[this](QDialog& form) {
        EXPECT_EQ(Kinds(form).currentRow(), 6);
        The<QRadioButton>(form, "RB3d").click();
        EXPECT_EQ(Kinds(form).currentRow(), 0);
        EXPECT_EQ(Kinds(form).currentItem()->text(), "Bar (Column)");
        EXPECT_EQ(dialog.Selected(), 0);
        EXPECT_EQ(Sample(form).chartType(), ChartType::Bar3D);
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, SwitchingTheDimensionKeepsTheKindWhereItHasIt) {
    Model().SetChartType(ChartType::Combination2D);
    Edit({[this](QDialog& form) {
        The<QRadioButton>(form, "RB3d").click();
        EXPECT_EQ(dialog.Selected(), 8);
        The<QRadioButton>(form, "RB2d").click();
        EXPECT_EQ(dialog.Selected(), 9);
    }});
    EXPECT_EQ(KindTexts(dialog),
              QStringList({"Bar", "Line", "Area", "Step", "Combination", "Pie", "XY (Scatter)"}));
}

TEST_F(GraphTypesTest, EveryTypeIsShownAndWrittenBack) {
    for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}) {
        Model().SetChartType(ToChartType(type));
        Edit({[this, type](QDialog& form) {
            EXPECT_EQ(dialog.Selected(), type);
            EXPECT_EQ(static_cast<int>(Sample(form).chartType()), type);
            Ok(form);
        }});
        EXPECT_EQ(static_cast<int>(Model().chartType()), type);
    }
}

TEST_F(GraphTypesTest, WithStackingOffTheHundredPercentBoxIsDisabledOnOpening) {
    Edit({[](QDialog& form) { EXPECT_FALSE(Check(form, "C100").isEnabled()); }});
    viewer.look.stacked = 1;
    Edit({[](QDialog& form) { EXPECT_TRUE(Check(form, "C100").isEnabled()); }});
    EXPECT_EQ(desktop.shown, 2);
}

TEST_F(GraphTypesTest, APieHasALabelPositionNoStackingAndItsOwnLocations) {
    Edit({[](QDialog& form) {
        EXPECT_FALSE(List(form, "cbPiePos").isEnabled());
        EXPECT_EQ(Items(List(form, "cbLabels")), QStringList({"None", "Above", "Below", "Center", "Base"}));
        Kinds(form).setCurrentRow(5);
        EXPECT_TRUE(List(form, "cbPiePos").isEnabled());
        EXPECT_FALSE(Check(form, "CStackSeries").isEnabled());
        EXPECT_FALSE(Check(form, "CShowMarkers").isEnabled());
        EXPECT_EQ(Items(List(form, "cbLabels")), QStringList({"None", "Inside", "Outside"}));
        Kinds(form).setCurrentRow(6);
        EXPECT_FALSE(Check(form, "CStackSeries").isEnabled());
        EXPECT_TRUE(Check(form, "CShowLines").isEnabled());
        EXPECT_EQ(Items(List(form, "cbLabels")),
                  QStringList({"None", "Above", "Below", "Center", "Left", "Right"}));
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, LinesCanBeChosenForLinesIn2DAndXYOnly) {
    for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}) {
        dialog.SetSelected(0);
        Model().SetChartType(ToChartType(type));
        Edit({[type](QDialog& form) {
            EXPECT_EQ(Check(form, "CShowLines").isEnabled(), type == 3 || type == 16) << type;
            EXPECT_EQ(Check(form, "CStackSeries").isEnabled(), type != 14 && type != 16) << type;
        }});
    }
    EXPECT_EQ(desktop.shown, 12);
}

TEST_F(GraphTypesTest, ASeriesWithAnotherLocationMakesTheListShowNone) {
    for (int series = 1; series <= 3; ++series) {
        Label(series).LocationType = LabelLocation::AbovePoint;
        Label(series).LineStyle = LabelLineStyle::Straight;
    }
    Edit({[this](QDialog& form) {
        EXPECT_EQ(dialog.QmLabels(), 1);
        EXPECT_EQ(List(form, "cbLines").currentIndex(), 1);
    }});
    Label(3).LocationType = LabelLocation::BelowPoint;
    Label(2).LineStyle = LabelLineStyle::Bent;
    Edit({[this](QDialog& form) {
        EXPECT_EQ(dialog.QmLabels(), 0);
        EXPECT_EQ(List(form, "cbLines").currentIndex(), 0);
    }});
    EXPECT_EQ(desktop.shown, 2);
}

TEST_F(GraphTypesTest, CancelAfterApplyKeepsWhatApplyWrote) {
    int written = 0;
    QObject::connect(&dialog, &PropertyDialog::Written, [&] { ++written; });
    Edit({[](QDialog& form) {
              Kinds(form).setCurrentRow(2);
              Apply(form);
          },
          [this](QDialog& form) {
              EXPECT_EQ(Model().chartType(), ChartType::Area2D);
              EXPECT_EQ(dialog.Selected(), 5);
              Kinds(form).setCurrentRow(3);
              Cancel(form);
          }});
    EXPECT_EQ(Model().chartType(), ChartType::Area2D);
    EXPECT_EQ(written, 1);
}

TEST_F(GraphTypesTest, CancelLeavesTheChartAsItWas) {
    const Chart before = Model();
    Edit({[](QDialog& form) {
        Kinds(form).setCurrentRow(5);
        for (const char* name : {"CShowLegend", "CShowMarkers", "CShowLines", "CStackSeries", "CSeriesInRows",
                                 "chkX", "chkY2", "chkXLab", "chkComponent0"})
            Check(form, name).toggle();
        List(form, "cbGridLines1").setCurrentIndex(2);
        List(form, "cb3DPerspective").setCurrentIndex(2);
        Cancel(form);
    }});
    EXPECT_EQ(Model(), before);
    EXPECT_EQ(viewer.look.markers, 0);
    EXPECT_EQ(viewer.look.lines, 1);
    EXPECT_EQ(viewer.look.stacked, 0);
}

TEST_F(GraphTypesTest, OpeningGivesEverySeriesMarkersOf10PointsWhateverBecomesOfTheDialog) {
    for (Series& series : Model().Plot.SeriesCollection)
        series.DataPoints.Item(DataPoints::All).Marker.Size = 4;
    Edit({Cancel});
    for (const Series& series : Model().Plot.SeriesCollection)
        EXPECT_EQ(series.DataPoints.Item(DataPoints::All).Marker.Size, 10);
}

TEST_F(GraphTypesTest, OkWritesEveryOption) {
    desktop.colours = {QColor(250, 240, 230)};
    Edit({[](QDialog& form) {
        The<QRadioButton>(form, "RB3d").click();
        Kinds(form).setCurrentRow(3);
        Check(form, "CShowLegend").setChecked(false);
        Check(form, "CShowMarkers").setChecked(true);
        Check(form, "CStackSeries").setChecked(true);
        Check(form, "C100").setChecked(true);
        Check(form, "chkX").setChecked(false);
        Check(form, "chkY2Lab").setChecked(false);
        Click(form, "btnBackColor");
        List(form, "cb3DPerspective").setCurrentIndex(2);
        List(form, "cbGridLines0").setCurrentIndex(1);
        List(form, "cbGridLines3").setCurrentIndex(2);
        List(form, "cbLabels").setCurrentIndex(4);
        List(form, "cbLines").setCurrentIndex(2);
        Check(form, "chkComponent2").setChecked(true);
        Ok(form);
    }});
    const Chart& chart = Model();
    EXPECT_EQ(chart.chartType(), ChartType::Step3D);
    EXPECT_FALSE(chart.ShowLegend);
    EXPECT_TRUE(chart.Stacking);
    EXPECT_EQ(chart.Plot.Axis(1).AxisScale.Type, ScaleType::Percent);
    EXPECT_TRUE(chart.Plot.Axis(0).AxisScale.Hide);
    EXPECT_FALSE(chart.Plot.Axis(1).AxisScale.Hide);
    EXPECT_FALSE(chart.Plot.Axis(2).AxisTitle.Visible);
    EXPECT_EQ(chart.Backdrop.Fill.Brush.FillColor, (Colour{250, 240, 230}));
    EXPECT_EQ(chart.Plot.Projection, Projection::Orthogonal);
    EXPECT_EQ(chart.Plot.Axis(0).AxisGrid.MajorPen.Style, PenStyle::Solid);
    EXPECT_EQ(chart.Plot.Axis(3).AxisGrid.MajorPen.Style, PenStyle::Dashed);
    for (int series = 1; series <= 3; ++series) {
        EXPECT_TRUE(chart.Plot.SeriesCollection(series).SeriesMarker.Show);
        EXPECT_EQ(Label(series).LocationType, LabelLocation::Base);
        EXPECT_EQ(Label(series).LineStyle, LabelLineStyle::Bent);
        EXPECT_EQ(Label(series).PercentFormat, "0.0%");
        EXPECT_EQ(Label(series).ValueFormat, ValueLabelFormat());
        EXPECT_EQ(Label(series).Component, LabelShowsSeriesName);
    }
    EXPECT_NE(viewer.look.markers, 0);
    EXPECT_NE(viewer.look.lines, 0);
    EXPECT_NE(viewer.look.stacked, 0);
    EXPECT_NE(viewer.look.fullStacked, 0);
}

TEST_F(GraphTypesTest, EveryOptionIsShownOnTheSampleAtOnceAndNotOnTheChart) {
    const Chart before = Model();
    desktop.colours = {QColor(1, 2, 3)};
    Edit({[&](QDialog& form) {
        Chart& sample = Sample(form);
        Check(form, "CShowLegend").setChecked(!sample.ShowLegend);
        EXPECT_EQ(sample.ShowLegend, !before.ShowLegend);
        Check(form, "CShowMarkers").setChecked(true);
        EXPECT_TRUE(sample.Plot.SeriesCollection(1).SeriesMarker.Show);
        Check(form, "CShowLines").setChecked(false);
        EXPECT_FALSE(sample.Plot.SeriesCollection(1).ShowLine);
        Check(form, "CStackSeries").setChecked(true);
        EXPECT_TRUE(sample.Stacking);
        Check(form, "C100").setChecked(true);
        EXPECT_EQ(sample.Plot.Axis(1).AxisScale.Type, ScaleType::Percent);
        Check(form, "chkX").setChecked(false);
        EXPECT_TRUE(sample.Plot.Axis(0).AxisScale.Hide);
        Check(form, "chkY1Lab").setChecked(false);
        EXPECT_FALSE(sample.Plot.Axis(1).AxisTitle.Visible);
        List(form, "cbGridLines2").setCurrentIndex(3);
        EXPECT_EQ(sample.Plot.Axis(2).AxisGrid.MajorPen.Style, PenStyle::Dotted);
        List(form, "cbPiePos").setCurrentIndex(3);
        EXPECT_EQ(sample.Plot.SubPlotLabelPosition, SubPlotLabelPosition::Center);
        List(form, "cb3DPerspective").setCurrentIndex(0);
        EXPECT_EQ(sample.Plot.Projection, Projection::Perspective);
        Click(form, "btnBackColor");
        EXPECT_EQ(sample.Backdrop.Fill.Brush.FillColor, (Colour{1, 2, 3}));
        Check(form, "CSeriesInRows").setChecked(true);
        EXPECT_TRUE(sample.Plot.DataSeriesInRow);
        EXPECT_EQ(Model(), before);
    }});
    EXPECT_EQ(Model(), before);
}

TEST_F(GraphTypesTest, TheSampleHasAllColumnsAndRows) {
    Edit({[](QDialog& form) {
        EXPECT_EQ(Sample(form).ColumnCount(), 3);
        EXPECT_EQ(Sample(form).RowCount(), 12);
    }});
    Give(2, 5);
    Edit({[](QDialog& form) {
        EXPECT_EQ(Sample(form).ColumnCount(), 5);
        EXPECT_EQ(Sample(form).RowCount(), 2);
    }});
    EXPECT_EQ(desktop.shown, 2);
}

TEST_F(GraphTypesTest, ASampleOfAVastTableHasAsManyRowsAsMakeAQuarterOfAMillionCells) {
    Chart vast;
    vast.SetGridSize(30'000, 20);
    EXPECT_EQ(SampleOf(vast).RowCount(), 12'500);
    EXPECT_EQ(SampleOf(vast).ColumnCount(), 20);
    vast.SetGridSize(12'000, 20);
    EXPECT_EQ(SampleOf(vast).RowCount(), 12'000);
}

TEST_F(GraphTypesTest, ClearingTheStackClearsAndDisablesTheHundredPercent) {
    viewer.look.stacked = 1;
    viewer.look.fullStacked = 1;
    Edit({[](QDialog& form) {
        EXPECT_TRUE(Check(form, "C100").isChecked());
        Check(form, "CStackSeries").setChecked(false);
        EXPECT_FALSE(Check(form, "C100").isChecked());
        EXPECT_FALSE(Check(form, "C100").isEnabled());
        EXPECT_FALSE(Sample(form).Stacking);
        EXPECT_EQ(Sample(form).Plot.Axis(1).AxisScale.Type, ScaleType::Linear);
        Check(form, "CStackSeries").setChecked(true);
        EXPECT_TRUE(Check(form, "C100").isEnabled());
        EXPECT_FALSE(Check(form, "C100").isChecked());
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, TheFlipTakesStackingOffAndPutsItBackWithoutTheHundredPercent) {
    viewer.look.stacked = 1;
    viewer.look.fullStacked = 1;
    Edit({[](QDialog& form) {
        Check(form, "CSeriesInRows").setChecked(true);
        EXPECT_TRUE(Check(form, "CStackSeries").isChecked());
        EXPECT_FALSE(Check(form, "C100").isChecked());
        EXPECT_TRUE(Check(form, "C100").isEnabled());
        EXPECT_TRUE(Sample(form).Stacking);
        EXPECT_TRUE(Sample(form).Plot.DataSeriesInRow);
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, OpeningAStackedChartWithSeriesInRowsShowsItAsItIs) {
    SetSeriesInRows(Model(), True);
    Model().Stacking = true;
    viewer.look.stacked = 1;
    viewer.look.fullStacked = 1;
    Edit({[](QDialog& form) {
        EXPECT_TRUE(Check(form, "CSeriesInRows").isChecked());
        EXPECT_TRUE(Check(form, "CStackSeries").isChecked());
        EXPECT_TRUE(Check(form, "C100").isChecked());
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, ATitleBoxIsEnabledWhileItsAxisIsShown) {
    Model().Plot.Axis(2).AxisScale.Hide = true;
    Edit({[](QDialog& form) {
        EXPECT_FALSE(Check(form, "chkY2").isChecked());
        EXPECT_FALSE(Check(form, "chkY2Lab").isEnabled());
        Check(form, "chkY2").setChecked(true);
        EXPECT_TRUE(Check(form, "chkY2Lab").isEnabled());
        EXPECT_TRUE(Check(form, "chkXLab").isEnabled());
        Check(form, "chkX").setChecked(false);
        EXPECT_FALSE(Check(form, "chkXLab").isEnabled());
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, TheZAxisCanBeChosenIn3DOnly) {
    Model().Plot.Axis(3).AxisScale.Hide = true;
    Edit({[](QDialog& form) {
        for (const char* name : {"chkZ", "chkZLab", "cbGridLines3"})
            EXPECT_FALSE(The<QWidget>(form, name).isEnabled()) << name;
        The<QRadioButton>(form, "RB3d").click();
        EXPECT_TRUE(Check(form, "chkZ").isEnabled());
        EXPECT_FALSE(Check(form, "chkZLab").isEnabled());
        EXPECT_TRUE(List(form, "cbGridLines3").isEnabled());
        Check(form, "chkZ").setChecked(true);
        EXPECT_TRUE(Check(form, "chkZLab").isEnabled());
        The<QRadioButton>(form, "RB2d").click();
        EXPECT_FALSE(Check(form, "chkZLab").isEnabled());
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTypesTest, InAOneColumnChartTheFlipFollowsThePie) {
    Give(4, 1);
    Edit({[](QDialog& form) {
        EXPECT_FALSE(Check(form, "CSeriesInRows").isEnabled());
        Kinds(form).setCurrentRow(4);
        EXPECT_TRUE(Check(form, "CSeriesInRows").isChecked());
        EXPECT_TRUE(Check(form, "CSeriesInRows").isEnabled());
        EXPECT_TRUE(Sample(form).Plot.DataSeriesInRow);
        Kinds(form).setCurrentRow(0);
        EXPECT_FALSE(Check(form, "CSeriesInRows").isChecked());
        EXPECT_FALSE(Check(form, "CSeriesInRows").isEnabled());
        Kinds(form).setCurrentRow(4);
        Ok(form);
    }});
    EXPECT_TRUE(Model().Plot.DataSeriesInRow);
    EXPECT_EQ(Model().chartType(), ChartType::Pie2D);
}

TEST_F(GraphTypesTest, AComponentThatOnlySomeSeriesShowIsGrayAndStaysAsEachSeriesHasIt) {
    Label(1).Component = LabelShowsValue | LabelShowsSeriesName;
    Label(2).Component = LabelShowsPercent | LabelShowsSeriesName;
    Label(3).Component = LabelShowsSeriesName;
    Edit({[](QDialog& form) {
        EXPECT_EQ(Check(form, "chkComponent0").checkState(), Qt::PartiallyChecked);
        EXPECT_EQ(Check(form, "chkComponent1").checkState(), Qt::PartiallyChecked);
        EXPECT_EQ(Check(form, "chkComponent2").checkState(), Qt::Checked);
        Check(form, "chkComponent1").setCheckState(Qt::Checked);
        Ok(form);
    }});
    EXPECT_EQ(Label(1).Component, LabelShowsValue | LabelShowsPercent | LabelShowsSeriesName);
    EXPECT_EQ(Label(2).Component, LabelShowsPercent | LabelShowsSeriesName);
    EXPECT_EQ(Label(3).Component, LabelShowsPercent | LabelShowsSeriesName);
}

TEST_F(GraphTypesTest, AnotherKindKeepsTheChosenLocationOrWhatStandsForIt) {
    for (int series = 1; series <= 3; ++series) Label(series).LocationType = LabelLocation::AbovePoint;
    Edit({[this](QDialog& form) {
        Kinds(form).setCurrentRow(1);
        EXPECT_EQ(dialog.QmLabels(), 1);
        Kinds(form).setCurrentRow(5);
        EXPECT_EQ(dialog.QmLabels(), 6);
        Ok(form);
    }});
    EXPECT_EQ(Label(2).LocationType, LabelLocation::Outside);
}

TEST_F(GraphTypesTest, OkLeavesTheSeriesOfACombinationTheirOwnTypes) {
    Model().SetChartType(ChartType::Combination2D);
    Model().Plot.SeriesCollection(3).SeriesType = SeriesType::Area2D;
    Edit({Ok});
    EXPECT_EQ(Model().Plot.SeriesCollection(3).SeriesType, SeriesType::Area2D);
}

TEST_F(GraphTypesTest, AColourPickerThatIsCancelledLeavesTheBackground) {
    Model().Backdrop.Fill.Brush.FillColor = {7, 8, 9};
    Edit({[](QDialog& form) {
        Click(form, "btnBackColor");
        Ok(form);
    }});
    EXPECT_EQ(desktop.colourStarts, QList<QColor>({QColor(7, 8, 9)}));
    EXPECT_EQ(Model().Backdrop.Fill.Brush.FillColor, (Colour{7, 8, 9}));
}

TEST_F(GraphTypesTest, AKindThatAChartDoesNotOfferAnyMoreShowsAsBar) {
    Give(3, 1);
    Model().SetChartType(ChartType::XY2D);
    Edit({[this](QDialog& /*form*/) { EXPECT_EQ(dialog.Selected(), 1); }});
    EXPECT_RAISES(380, (dialog.SetSelected(10), 0));
    EXPECT_RAISES(380, (dialog.SetQmLabels(9), 0));
}

TEST_F(GraphTypesTest, AChartWithoutDataCanBeEdited) {
    viewer.Model().SetGridSize(0, 0);
    Edit({[](QDialog& form) {
        Check(form, "CShowLegend").setChecked(false);
        Ok(form);
    }});
    EXPECT_FALSE(Model().ShowLegend);
}

TEST_F(GraphTypesTest, HasFiveTabs) {
    const auto& tabs = The<QTabWidget>(dialog, "TabTypes");
    QStringList titles;
    for (int tab = 0; tab < tabs.count(); ++tab) titles.append(tabs.tabText(tab).remove(u'&'));
    EXPECT_EQ(titles, QStringList({"General", "Axes", "Grid", "Labels", "Design"}));
}
