#include "dialogs/GraphSeriesProperties.h"

#include "DialogsTest.h"
#include "chartcontrol/model/Chart.h"
#include "chartcontrol/model/ChartKinds.h"
#include "dialogs/PatternPicker.h"
#include "support/Raises.h"
#include "support/SampleCharts.h"

#include <QLineEdit>
#include <QTabWidget>

using namespace QmChart6;

namespace {

class GraphSeriesPropertiesTest : public DialogsTest {
protected:
    GraphSeriesPropertiesTest() {
        chart = Samples::ChartOf(4, 3, [](int row, int column) { return row * column; });
    }

    DataPoint& Points() { return chart.Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All); }
    Series& Edited() { return chart.Plot.SeriesCollection(2); }

    void Edit(std::deque<DealingDesktop::Deal> deals) {
        desktop.deals = std::move(deals);
        const auto expected = desktop.shown + static_cast<int>(desktop.deals.size());
        dialog.Execute([this] { return &Edited(); }, chart.chartType(), name);
        EXPECT_EQ(desktop.shown, expected);
    }

    Chart chart;
    QString name = QStringLiteral("North");
    GraphSeriesProperties dialog{nullptr};
};

} // namespace

TEST_F(GraphSeriesPropertiesTest, ShowsWhatTheSeriesHas) {
    Points().Brush = {
        .Style = BrushStyle::Hatch, .Index = 4, .FillColor = {1, 2, 3}, .PatternColor = {4, 5, 6}};
    Points().DataPointLabel.LocationType = LabelLocation::Base;
    Points().DataPointLabel.LineStyle = LabelLineStyle::Bent;
    Points().DataPointLabel.Component = LabelShowsValue | LabelShowsSeriesName;
    Edited().StatLine.Flag = StatMinimum | StatRegression;
    Edit({[this](QDialog& form) {
        EXPECT_EQ(The<QLineEdit>(form, "txtName").text(), "North");
        EXPECT_EQ(List(form, "cbType").currentIndex(), 0);
        EXPECT_EQ(Items(List(form, "cbLabels")), QStringList({"None", "Above", "Below", "Center", "Base"}));
        EXPECT_EQ(List(form, "cbLabels").currentIndex(), 4);
        EXPECT_EQ(Items(List(form, "cbLines")), QStringList({"None", "Straight", "Bent"}));
        EXPECT_EQ(List(form, "cbLines").currentIndex(), 2);
        EXPECT_TRUE(Check(form, "chkComponent0").isChecked());
        EXPECT_FALSE(Check(form, "chkComponent1").isChecked());
        EXPECT_TRUE(Check(form, "chkComponent2").isChecked());
        EXPECT_EQ(dialog.QmStyle(), 3);
        EXPECT_EQ(dialog.QmIndex(), 4);
        EXPECT_TRUE(Check(form, "chkMin").isChecked());
        EXPECT_FALSE(Check(form, "chkMax").isChecked());
        EXPECT_FALSE(Check(form, "chkMean").isChecked());
        EXPECT_FALSE(Check(form, "chkStdDev").isChecked());
        EXPECT_TRUE(Check(form, "chkReg").isChecked());
        Click(form, "btnColor");
        Click(form, "btnStyleColor");
    }});
    EXPECT_EQ(desktop.colourStarts, QList<QColor>({QColor(1, 2, 3), QColor(4, 5, 6)}));
}

TEST_F(GraphSeriesPropertiesTest, AClickOnASwatchOpensItsPicker) {
    desktop.colours = {QColor(10, 20, 30), QColor(40, 50, 60)};
    Edit({[](QDialog& form) {
        The<QTabWidget>(form, "tabSeries").setCurrentIndex(0);
        QTest::mouseClick(&The<QWidget>(form, "pbColor"), Qt::LeftButton);
        The<QTabWidget>(form, "tabSeries").setCurrentIndex(2);
        QTest::mouseClick(&The<QWidget>(form, "pbStyleColor"), Qt::LeftButton);
        Ok(form);
    }});
    EXPECT_EQ(Points().Brush.FillColor, (Colour{10, 20, 30}));
    EXPECT_EQ(Points().Brush.PatternColor, (Colour{40, 50, 60}));
}

TEST_F(GraphSeriesPropertiesTest, TheBoxesLineUpWithTheButtonAboveThem) {
    Edit({[](QDialog& form) {
        The<QTabWidget>(form, "tabSeries").setCurrentIndex(2);
        QApplication::processEvents();
        const QWidget& picker = The<QWidget>(form, "picStyle");
        const QWidget& button = The<QWidget>(form, "btnStyleColor");
        EXPECT_EQ(picker.mapTo(&form, QPoint(PatternPicker::LeftEdge(), 0)).x(),
                  button.mapTo(&form, QPoint()).x());
    }});
}

TEST_F(GraphSeriesPropertiesTest, LabelsThatAreGivenAPlaceShowTheirValues) {
    Points().DataPointLabel.Component = 0;
    const auto chooseNext = [](QDialog& form) {
        The<QTabWidget>(form, "tabSeries").setCurrentIndex(1);
        QTest::keyClick(&List(form, "cbLabels"), Qt::Key_Down);
        Ok(form);
    };
    Edit({chooseNext});
    EXPECT_EQ(Points().DataPointLabel.LocationType, LabelLocation::AbovePoint);
    EXPECT_EQ(Points().DataPointLabel.Component, LabelShowsValue);
    Points().DataPointLabel.Component = LabelShowsPercent;
    Edit({chooseNext});
    EXPECT_EQ(Points().DataPointLabel.Component, LabelShowsPercent);
}

TEST_F(GraphSeriesPropertiesTest, WritesEveryFieldOnOkAndNothingElse) {
    Chart expected = chart;
    desktop.colours = {QColor(10, 20, 30), QColor(40, 50, 60)};
    Edit({[](QDialog& form) {
        The<QLineEdit>(form, "txtName").setText(QStringLiteral("South"));
        Click(form, "btnColor");
        Click(form, "btnStyleColor");
        auto& picker = The<PatternPicker>(form, "picStyle");
        QTest::mouseClick(&picker, Qt::LeftButton, {}, picker.Boxes().back().place.center());
        List(form, "cbLabels").setCurrentIndex(2);
        List(form, "cbLines").setCurrentIndex(1);
        Check(form, "chkComponent1").setChecked(true);
        for (const char* box : {"chkMax", "chkMean", "chkStdDev"}) Check(form, box).setChecked(true);
        Ok(form);
    }});
    EXPECT_EQ(name, "South");
    Series& series = expected.Plot.SeriesCollection(2);
    series.StatLine.VtColor = {10, 20, 30};
    series.StatLine.Flag = StatMaximum | StatMean | StatStandardDeviation;
    DataPoint& points = series.DataPoints.Item(DataPoints::All);
    points.Brush = {
        .Style = BrushStyle::Pattern, .Index = 17, .FillColor = {10, 20, 30}, .PatternColor = {40, 50, 60}};
    points.DataPointLabel.LocationType = LabelLocation::BelowPoint;
    points.DataPointLabel.LineStyle = LabelLineStyle::Straight;
    points.DataPointLabel.PercentFormat = QStringLiteral("0.0%");
    points.DataPointLabel.Component = LabelShowsPercent;
    EXPECT_EQ(chart, expected);
}

TEST_F(GraphSeriesPropertiesTest, CancelLeavesTheChartAndTheNameAsTheyWere) {
    const Chart before = chart;
    desktop.colours = {QColor(10, 20, 30)};
    Edit({[](QDialog& form) {
        The<QLineEdit>(form, "txtName").setText(QStringLiteral("South"));
        Click(form, "btnColor");
        List(form, "cbLabels").setCurrentIndex(2);
        Check(form, "chkMax").setChecked(true);
        Cancel(form);
    }});
    EXPECT_EQ(chart, before);
    EXPECT_EQ(name, "North");
}

TEST_F(GraphSeriesPropertiesTest, CancelAfterApplyKeepsWhatApplyWrote) {
    Edit({[](QDialog& form) {
              The<QLineEdit>(form, "txtName").setText(QStringLiteral("Applied"));
              Check(form, "chkMax").setChecked(true);
              Apply(form);
          },
          [this](QDialog& form) {
              EXPECT_EQ(name, "Applied");
              EXPECT_EQ(The<QLineEdit>(form, "txtName").text(), "Applied");
              The<QLineEdit>(form, "txtName").setText(QStringLiteral("Dropped"));
              Check(form, "chkMax").setChecked(false);
              Cancel(form);
          }});
    EXPECT_EQ(name, "Applied");
    EXPECT_EQ(Edited().StatLine.Flag, StatMaximum);
}

TEST_F(GraphSeriesPropertiesTest, ChoosingLineWrites5InA3DChartAnd6InA2DOne) {
    for (const auto& [type, expected] : {std::pair(ChartType::Combination3D, SeriesType::Line3D),
                                         std::pair(ChartType::Combination2D, SeriesType::Line2D)}) {
        chart.SetChartType(type);
        Edit({[](QDialog& form) {
            List(form, "cbType").setCurrentIndex(1);
            Ok(form);
        }});
        EXPECT_EQ(Edited().SeriesType, expected);
    }
}

TEST_F(GraphSeriesPropertiesTest, EveryTypeOfACombinationIsReadAndWrittenBack) {
    for (const auto& [type, offset] :
         {std::pair(ChartType::Combination3D, 1), std::pair(ChartType::Combination2D, 0)}) {
        chart.SetChartType(type);
        for (const int number : {1, 6, 8, 10}) {
            Edited().SeriesType = ToSeriesType(number - offset);
            Edit({Ok});
            EXPECT_EQ(static_cast<int>(Edited().SeriesType), number - offset);
        }
    }
}

TEST_F(GraphSeriesPropertiesTest, InAChartThatIsNoCombinationTheTypeIsShownButCannotBeChanged) {
    const std::vector<std::pair<ChartType, QString>> shown{
        {ChartType::Bar2D, "Bar"},   {ChartType::Line2D, "Line"}, {ChartType::Area2D, "Area"},
        {ChartType::Step2D, "Step"}, {ChartType::XY2D, "XY"},     {ChartType::Pie2D, "Pie"},
        {ChartType::Line3D, "Line"}, {ChartType::Step3D, "Step"}};
    for (const auto& [type, text] : shown) {
        chart.SetChartType(type);
        const SeriesType before = Edited().SeriesType;
        Edit({[&text = text](QDialog& form) {
            EXPECT_FALSE(List(form, "cbType").isEnabled());
            EXPECT_EQ(List(form, "cbType").currentText(), text);
            Ok(form);
        }});
        EXPECT_EQ(Edited().SeriesType, before);
    }
}

TEST_F(GraphSeriesPropertiesTest, OnlyTwoDimensionalChartsThatAreNoCombinationOfferXYAndPie) {
    for (const auto& [type, count] :
         {std::pair(ChartType::Bar2D, 6), std::pair(ChartType::Bar3D, 4),
          std::pair(ChartType::Combination2D, 4), std::pair(ChartType::Combination3D, 4)}) {
        chart.SetChartType(type);
        Edit({[count = count](QDialog& form) { EXPECT_EQ(List(form, "cbType").count(), count); }});
    }
    EXPECT_TRUE(chart.chartType() == ChartType::Combination3D);
}

TEST_F(GraphSeriesPropertiesTest, APieSeriesOffersOnlyNoneInsideAndOutside) {
    chart.SetChartType(ChartType::Pie2D);
    Points().DataPointLabel.LocationType = LabelLocation::Outside;
    Edit({[this](QDialog& form) {
        EXPECT_EQ(Items(List(form, "cbLabels")), QStringList({"None", "Inside", "Outside"}));
        EXPECT_EQ(dialog.QmLabels(), 6);
        List(form, "cbLabels").setCurrentIndex(1);
        Ok(form);
    }});
    EXPECT_EQ(Points().DataPointLabel.LocationType, LabelLocation::Inside);
}

TEST_F(GraphSeriesPropertiesTest, EveryLocationOfAKindIsReadAndWrittenBack) {
    const std::vector<std::pair<ChartType, std::vector<int>>> kinds{{ChartType::Pie2D, {0, 5, 6}},
                                                                    {ChartType::XY2D, {0, 1, 2, 3, 7, 8}},
                                                                    {ChartType::Bar2D, {0, 1, 2, 3, 4}}};
    for (const auto& [type, codes] : kinds) {
        chart.SetChartType(type);
        for (std::size_t index = 0; index < codes.size(); ++index) {
            Points().DataPointLabel.LocationType = ToLabelLocation(codes[index]);
            Edit({[&, index](QDialog& form) {
                EXPECT_EQ(List(form, "cbLabels").currentIndex(), static_cast<int>(index));
                EXPECT_EQ(dialog.QmLabels(), codes[index]);
                Ok(form);
            }});
            EXPECT_EQ(static_cast<int>(Points().DataPointLabel.LocationType), codes[index]);
        }
    }
}

TEST_F(GraphSeriesPropertiesTest, ALocationThatAKindLacksSelectsByItsNumber) {
    struct Case {
        ChartType type;
        int code;
        int index;
    };
    for (const Case& one :
         {Case{ChartType::Bar2D, 5, 2}, Case{ChartType::Bar2D, 6, 3}, Case{ChartType::Bar2D, 7, 4},
          Case{ChartType::XY2D, 4, 4}, Case{ChartType::XY2D, 5, 2}, Case{ChartType::XY2D, 6, 3},
          Case{ChartType::Pie2D, 4, 0}}) {
        chart.SetChartType(one.type);
        Points().DataPointLabel.LocationType = ToLabelLocation(one.code);
        Edit({[&](QDialog& form) {
            EXPECT_EQ(List(form, "cbLabels").currentIndex(), one.index)
                << static_cast<int>(one.type) << ' ' << one.code;
            form.reject();
        }});
    }
}

TEST_F(GraphSeriesPropertiesTest, UntickingAllStatisticsBoxesWritesNoLines) {
    Edited().StatLine.Flag = 31;
    Edit({[](QDialog& form) {
        for (const char* box : {"chkMin", "chkMax", "chkStdDev", "chkMean", "chkReg"}) {
            EXPECT_TRUE(Check(form, box).isChecked()) << box;
            Check(form, box).setChecked(false);
        }
        Ok(form);
    }});
    EXPECT_EQ(Edited().StatLine.Flag, 0);
}

TEST_F(GraphSeriesPropertiesTest, AColourPickerThatIsCancelledLeavesTheColour) {
    const Colour before = Points().Brush.FillColor;
    Edit({[](QDialog& form) {
        Click(form, "btnColor");
        Ok(form);
    }});
    EXPECT_EQ(desktop.colourStarts.size(), 1);
    EXPECT_EQ(Points().Brush.FillColor, before);
}

TEST_F(GraphSeriesPropertiesTest, ASeriesWithoutAFillTakesTheFillColourAndStaysWithout) {
    Points().Brush.Style = BrushStyle::None;
    desktop.colours = {QColor(9, 8, 7)};
    Edit({[](QDialog& form) {
        Click(form, "btnColor");
        Ok(form);
    }});
    EXPECT_EQ(Points().Brush.Style, BrushStyle::None);
    EXPECT_EQ(Points().Brush.FillColor, (Colour{9, 8, 7}));
}

TEST_F(GraphSeriesPropertiesTest, ACustomLabelIsTakenAway) {
    Points().DataPointLabel.Text = QStringLiteral("own");
    Points().DataPointLabel.Custom = true;
    Edit({Ok});
    EXPECT_FALSE(Points().DataPointLabel.Custom);
    EXPECT_TRUE(Points().DataPointLabel.Text.isEmpty());
}

TEST_F(GraphSeriesPropertiesTest, StyleAndIndexMoveTheSelection) {
    dialog.SetQmStyle(2);
    dialog.SetQmIndex(7);
    auto& picker = The<PatternPicker>(dialog, "picStyle");
    EXPECT_EQ(picker.Style(), BrushStyle::Pattern);
    EXPECT_EQ(picker.Index(), 7);
    dialog.DrawBox(3, 1);
    EXPECT_EQ(dialog.QmStyle(), 3);
    EXPECT_EQ(dialog.QmIndex(), 1);
}

TEST_F(GraphSeriesPropertiesTest, ASeriesThatIsGoneRaisesAnError) {
    EXPECT_RAISES(91, (dialog.Execute(SeriesTarget(), ChartType::Bar2D, name), 0));
    bool gone = false;
    desktop.deals = {[&](QDialog& form) {
        gone = true;
        Ok(form);
    }};
    const auto whileItLasts = [&] { return gone ? nullptr : &Edited(); };
    EXPECT_RAISES(91, (dialog.Execute(whileItLasts, ChartType::Bar2D, name), 0));
}

TEST_F(GraphSeriesPropertiesTest, ATypeThatTheChartDoesNotOfferRaisesAnError) {
    EXPECT_RAISES(380, (dialog.Execute(
                            [this] {
                                Edited().SeriesType = SeriesType::Pie2D;
                                return &Edited();
                            },
                            ChartType::Combination2D, name),
                        0));
    EXPECT_RAISES(380, (dialog.SetSeriesType(3), 0));
}

TEST_F(GraphSeriesPropertiesTest, TheNameIsSelectedAndHasTheFocusWhenItIsFirstShown) {
    Edit({[](QDialog& form) {
        EXPECT_EQ(form.focusWidget(), &The<QLineEdit>(form, "txtName"));
        EXPECT_EQ(The<QLineEdit>(form, "txtName").selectedText(), "North");
    }});
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphSeriesPropertiesTest, HasFourTabs) {
    const auto& tabs = The<QTabWidget>(dialog, "tabSeries");
    QStringList titles;
    for (int tab = 0; tab < tabs.count(); ++tab) titles.append(tabs.tabText(tab).remove(u'&'));
    EXPECT_EQ(titles, QStringList({"General", "Labels", "Style", "Statistics"}));
}
