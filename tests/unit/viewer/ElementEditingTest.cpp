#include "viewer/ElementEditing.h"

#include "base/Units.h"
#include "chartcontrol/scene/HitTest.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "support/ChartDesk.h"
#include "support/Person.h"
#include "support/SampleCharts.h"
#include "support/ScriptedDesktop.h"
#include "text/LocalText.h"
#include "viewer/TitlePlacement.h"
#include "viewer/ViewerStatusBar.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// A viewer on the desktop whose chart shows every part that can be edited.
class ElementEditingTest : public testing::Test {
protected:
    ElementEditingTest() {
        SetLanguageCode(0);
        Chart& chart = Model();
        chart = Samples::ChartOf(4, 2, [](int row, int column) { return 10.0 * row + column; });
        chart.Title.Text = QStringLiteral("Turnover");
        chart.Footnote.Text = QStringLiteral("In thousands");
        chart.Footnote.Location.LocationType = LocationType::Bottom;
        chart.ShowLegend = true;
        chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("Regions");
        chart.Plot.Axis(AxisId::Y).AxisTitle.Text = QStringLiteral("Euro");
        for (Series& series : chart.Plot.SeriesCollection) {
            DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
            label.Component = 1;
            label.LocationType = LabelLocation::AbovePoint;
        }
    }
    void SetUp() override {
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
        form->RefreshControlBar();
        form->SetModified(false);
    }
    ~ElementEditingTest() override {
        form->SetModified(false);
        SetLanguageCode(0);
    }

    [[nodiscard]] ChartControl& Control() const { return form->ChartImage(); }
    [[nodiscard]] Chart& Model() const { return Control().Model(); }
    [[nodiscard]] QPoint Place(PartCode code, int index = AnyIndex) const {
        return PlaceOf(Control(), {code, index, AnyIndex});
    }
    [[nodiscard]] QAction& First() const { return The<QAction>(*form, "optGenericProperties"); }
    [[nodiscard]] ViewerMenu& Menu() const { return The<ViewerMenu>(*form, "mProperties"); }

    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    std::shared_ptr<GraphForm> form = std::make_shared<GraphForm>();
};

struct EditedElement {
    const char* name;
    PartCode code;
    int index = AnyIndex;
    TextKey captionKey{};
    bool text = false;
    bool orientation = false;
    bool alignment = false;
};

void PrintTo(const EditedElement& element, std::ostream* out) {
    *out << element.name;
}

constexpr EditedElement TextElements[] = {
    {"AxisTitle", PartCode::AxisTitle, 0, TextKey::AxisTitleProperties, true, true, false},
    {"ChartTitle", PartCode::Title, AnyIndex, TextKey::ChartTitleProperties, true, true, true},
    {"Legend", PartCode::Legend, AnyIndex, TextKey::LegendTextProperties, false, false, false},
    {"PointLabel", PartCode::PointLabel, 2, TextKey::DataLabelsProperties, false, true, false},
    {"AxisLabels", PartCode::AxisLabel, 0, TextKey::AxisLabelsProperties, false, false, false},
    {"Axis", PartCode::Axis, 1, TextKey::AxisLabelsProperties, false, false, false},
    {"Footnote", PartCode::Footnote, AnyIndex, TextKey::FootnoteProperties, true, false, true},
};

class TextElementTest : public ElementEditingTest, public testing::WithParamInterface<EditedElement> {
protected:
    void ExpectItsDialog(GraphTextProperties& dialog) {
        const EditedElement& element = GetParam();
        EXPECT_EQ(dialog.windowTitle(), LocalText(element.captionKey));
        EXPECT_EQ(The<QLineEdit>(dialog, "TText").isEnabled(), element.text);
        EXPECT_EQ(The<QGroupBox>(dialog, "frmOrientButtons").isEnabled(), element.orientation);
        EXPECT_EQ(The<QGroupBox>(dialog, "frmAlignment").isEnabled(), element.alignment);
    }
};

} // namespace

TEST_P(TextElementTest, ARightClickNamesItAndTheEntryOpensItsDialog) {
    const EditedElement& element = GetParam();
    Person<GraphTextProperties> person([this](GraphTextProperties& dialog) {
        ExpectItsDialog(dialog);
        ClickIn(dialog, "btnOK");
    });
    OpenMenu(*form, Place(element.code, element.index));
    EXPECT_TRUE(First().isVisible());
    EXPECT_EQ(First().text().remove(u'&'), LocalText(element.captionKey));
    EXPECT_EQ(Control().SelectedPart().part, static_cast<int>(element.code));
    ChooseEntry(*form, "optGenericProperties");
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(form->Modified());
}

TEST_P(TextElementTest, ADoubleClickOpensItsDialog) {
    Person<GraphTextProperties> person([this](GraphTextProperties& dialog) {
        ExpectItsDialog(dialog);
        ClickIn(dialog, "btnCancel");
    });
    DoubleClick(*form, Place(GetParam().code, GetParam().index));
    EXPECT_TRUE(person.WasAsked());
}

TEST_P(TextElementTest, TheChosenFontIsTheElementsOwnAndIsSeen) {
    const EditedElement& element = GetParam();
    desktop.fonts = {
        {.family = QStringLiteral("Arial"), .size = 8, .italic = true, .colour = QColor(1, 2, 3)}};
    Person<GraphTextProperties> person([](GraphTextProperties& dialog) {
        ClickIn(dialog, "btnFont");
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, Place(element.code, element.index));
    EXPECT_TRUE(person.WasAsked());
    // An axis' line has no font; that of its labels is edited.
    const PartCode shown = element.code == PartCode::Axis ? PartCode::AxisLabel : element.code;
    const Scene& scene = Control().CurrentScene();
    int lines = 0;
    for (const Shape& shape : scene.shapes) {
        const auto* line = std::get_if<TextLine>(&shape.geometry);
        if (line == nullptr) continue;
        const bool itsOwn =
            shape.part.code == shown && (element.index == AnyIndex || shape.part.index1 == element.index);
        EXPECT_EQ(line->font.VtColor == (Colour{1, 2, 3}), itsOwn) << line->text.toStdString();
        lines += itsOwn ? 1 : 0;
    }
    EXPECT_GT(lines, 0);
}

TEST_P(TextElementTest, EnterOpensTheDialogOfTheSelectedPart) {
    Person<GraphTextProperties> person([this](GraphTextProperties& dialog) {
        ExpectItsDialog(dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QTest::mouseClick(&Control(), Qt::LeftButton, {}, Place(GetParam().code, GetParam().index));
    Control().setFocus();
    QTest::keyClick(&Control(), Qt::Key_Return);
    EXPECT_TRUE(person.WasAsked());
}

INSTANTIATE_TEST_SUITE_P(Elements, TextElementTest, testing::ValuesIn(TextElements),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(ElementEditingTest, ARightClickOnThePlotShowsTheMenuWithoutItsFirstCommand) {
    OpenMenu(*form, PlaceOfPlot(Control()));
    EXPECT_FALSE(First().isVisible());
    EXPECT_TRUE(The<QAction>(*form, "optChart").isVisible());
    EXPECT_EQ(Control().SelectedPart().part, static_cast<int>(PartCode::Plot));
    Menu().close();
}

TEST_F(ElementEditingTest, ARightClickOutsideTheChartShowsTheMenuWithoutItsFirstCommandAndSelectsNothing) {
    OpenMenu(*form, Place(PartCode::Title));
    EXPECT_TRUE(First().isVisible());
    Menu().close();
    QTest::keyClick(&Control(), Qt::Key_Escape);
    ASSERT_TRUE(Control().SelectedPart().IsNone());
    const auto& status = The<ViewerStatusBar>(*form, "sbGraph");
    QTest::mouseClick(form->windowHandle(), Qt::RightButton, {}, status.geometry().center());
    ASSERT_TRUE(QTest::qWaitFor([this] { return Menu().isVisible(); }));
    EXPECT_FALSE(First().isVisible());
    EXPECT_TRUE(Control().SelectedPart().IsNone());
    Menu().close();
}

TEST_F(ElementEditingTest, TheMenuKeyAndShiftF10ShowTheMenuOfTheSelectedPart) {
    QTest::mouseClick(&Control(), Qt::LeftButton, {}, Place(PartCode::Footnote));
    for (const auto& [key, modifier] :
         {std::pair(Qt::Key_Menu, Qt::NoModifier), std::pair(Qt::Key_F10, Qt::ShiftModifier)}) {
        QTest::keyClick(&Control(), key, modifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return Menu().isVisible(); })) << key;
        EXPECT_EQ(First().text().remove(u'&'), LocalText(TextKey::FootnoteProperties));
        EXPECT_TRUE(First().isVisible());
        Menu().close();
    }
}

TEST_F(ElementEditingTest, ADoubleClickOnThePlotOpensTheDialogOfTheChart) {
    Person<GraphTypes> person([](GraphTypes& dialog) {
        ClickIn(dialog, "CShowLegend");
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, PlaceOfPlot(Control()));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_FALSE(Model().ShowLegend);
    EXPECT_FALSE(The<ViewerToolBar>(*form, "tbControlBar").IsPressed(BarButton::Legend));
    EXPECT_TRUE(form->Modified());
}

TEST_F(ElementEditingTest, TheEntryForTheChartOpensItsDialogWhateverIsSelected) {
    Person<GraphTypes> person([](GraphTypes& dialog) { ClickIn(dialog, "btnCancel"); });
    OpenMenu(*form, Place(PartCode::Title));
    ChooseEntry(*form, "optChart");
    EXPECT_TRUE(person.WasAsked());
    EXPECT_FALSE(form->Modified());
}

TEST_F(ElementEditingTest, ASeriesOpensTheDialogForSeries) {
    for (const bool byMenu : {false, true}) {
        Person<GraphSeriesProperties> person([](GraphSeriesProperties& dialog) {
            EXPECT_EQ(dialog.windowTitle(), LocalText(TextKey::SeriesProperties));
            EXPECT_EQ(The<QLineEdit>(dialog, "txtName").text(), "Series 2");
            ClickIn(dialog, "btnCancel");
        });
        const QPoint place = Place(PartCode::Series, 2);
        if (byMenu) {
            OpenMenu(*form, place);
            EXPECT_EQ(First().text().remove(u'&'), LocalText(TextKey::SeriesProperties));
            ChooseEntry(*form, "optGenericProperties");
        } else {
            DoubleClick(*form, place);
        }
        EXPECT_TRUE(person.WasAsked()) << byMenu;
    }
}

TEST_F(ElementEditingTest, RenamingASeriesRenamesItsColumn) {
    Person<GraphSeriesProperties> person([](GraphSeriesProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "txtName"), QStringLiteral("North"));
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, Place(PartCode::Series, 2));
    EXPECT_EQ(Model().DataGrid.ColumnLabel(2), "North");
    EXPECT_EQ(Model().DataGrid.RowLabel(2), "Row 2");
    EXPECT_EQ(Model().Column, 2);
}

TEST_F(ElementEditingTest, RenamingASeriesInRowsRenamesItsRow) {
    ClickButton(*form, BarButton::Flip);
    std::optional<Person<GraphSeriesProperties>> again;
    Person<GraphSeriesProperties> person([&](GraphSeriesProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "txtName"), QStringLiteral("North"));
        again.emplace([this](GraphSeriesProperties& shownAgain) {
            EXPECT_EQ(Model().DataGrid.RowLabel(3), "North");
            ClickIn(shownAgain, "btnCancel");
        });
        ClickIn(dialog, "btnApply");
    });
    DoubleClick(*form, Place(PartCode::Series, 3));
    EXPECT_TRUE(again && again->WasAsked());
    EXPECT_EQ(Model().DataGrid.RowLabel(3), "North");
    EXPECT_EQ(Model().DataGrid.ColumnLabel(2), "Series 2");
    EXPECT_EQ(Model().Row, 3);
}

TEST_F(ElementEditingTest, TheTitleStaysCentredWhereItWasHoweverItIsTurnedAndWithinTheChart) {
    // From the place that layout gave it, and then from the one that it was given by the first edit.
    const auto drawn = [this] {
        Title anywhere = Model().Title;
        anywhere.Location.LocationType = LocationType::Top;
        const CoordinateRect rect = StandingRect(anywhere, Control().CurrentScene()).value();
        return Box{rect.Min.X, rect.Min.Y, rect.Max.X, rect.Max.Y};
    };
    const Point origin = drawn().Center();
    const Size size = Control().CurrentScene().size;
    for (const int orientation : {0, 2, 3, 1, 0}) {
        desktop.fonts = {
            {.family = QStringLiteral("Arial"), .size = 11.0 + orientation, .colour = Qt::black}};
        Person<GraphTextProperties> person([&](GraphTextProperties& dialog) {
            ClickIn(dialog, QStringLiteral("btnOrientation%1").arg(orientation).toLatin1().constData());
            ClickIn(dialog, "btnFont");
            ClickIn(dialog, "btnOK");
        });
        DoubleClick(*form, Place(PartCode::Title));
        ASSERT_TRUE(person.WasAsked());
        EXPECT_EQ(static_cast<int>(Model().Title.TextLayout.Orientation), orientation);
        const Location& location = Model().Title.Location;
        EXPECT_EQ(location.LocationType, LocationType::Custom);
        EXPECT_NEAR((location.Rect.Min.X + location.Rect.Max.X) / 2, origin.x, 0.01) << orientation;
        EXPECT_NEAR((location.Rect.Min.Y + location.Rect.Max.Y) / 2, origin.y, 0.01) << orientation;
        const Box after = drawn();
        EXPECT_NEAR(after.Center().x, origin.x, 1) << orientation;
        if (orientation == 0) {
            EXPECT_NEAR(after.Center().y, origin.y, 1);
        }
        EXPECT_GE(after.top, -0.01) << orientation;
        EXPECT_LE(after.bottom, size.height + 0.01) << orientation;
    }
}

TEST_F(ElementEditingTest, AnEditedTitleIsNeverCutWhateverTheHostCallsItLaterAndHoweverWideTheWindowIs) {
    Person<GraphTextProperties> person([](GraphTextProperties& dialog) { ClickIn(dialog, "btnOK"); });
    DoubleClick(*form, Place(PartCode::Title));
    ASSERT_TRUE(person.WasAsked());
    Model().Title.Text = QStringLiteral("Turnover of all the regions since the year of foundation");
    for (const QSize window : {QSize(900, 500), QSize(300, 400), QSize(1400, 700)}) {
        form->resize(window);
        QApplication::processEvents();
        Control().Refresh();
        QString text;
        Box box = Box::Nothing();
        const Scene& scene = Control().CurrentScene();
        for (const Shape& shape : scene.shapes) {
            if (shape.part.code != PartCode::Title) continue;
            text += std::get<TextLine>(shape.geometry).text + u' ';
            box.Include(shape.bounds);
        }
        EXPECT_EQ(text.trimmed(), Model().Title.Text) << window.width();
        EXPECT_NEAR(box.Center().x, scene.size.width / 2, 3) << window.width();
        EXPECT_LE(box.right, scene.size.width) << window.width();
    }
}

TEST_F(ElementEditingTest, ACancelledTitleStaysWhereLayoutPutsIt) {
    const Title before = Model().Title;
    Person<GraphTextProperties> person([](GraphTextProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "TText"), QStringLiteral("Other"));
        ClickIn(dialog, "btnCancel");
    });
    DoubleClick(*form, Place(PartCode::Title));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(Model().Title, before);
}

TEST_F(ElementEditingTest, AnAxisTitleGoesWithItsRowsWhenTheChartIsFlipped) {
    Person<GraphTextProperties> person([](GraphTextProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "TText"), QStringLiteral("Countries"));
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, Place(PartCode::AxisTitle, 0));
    EXPECT_EQ(Model().Plot.Axis(AxisId::X).AxisTitle.Text, "Countries");
    ClickButton(*form, BarButton::Flip);
    EXPECT_EQ(Model().Plot.Axis(AxisId::Z).AxisTitle.Text, "Countries");
}

TEST_F(ElementEditingTest, EachEditHasADialogOfItsOwn) {
    QPointer<QDialog> first;
    Person<GraphTextProperties> person([&](GraphTextProperties& dialog) {
        first = &dialog;
        ClickIn(dialog, "btnCancel");
    });
    DoubleClick(*form, Place(PartCode::Title));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_TRUE(first.isNull());
}

TEST_F(ElementEditingTest, ASeriesThatIsGoneWhenItIsWrittenIsAnError91) {
    Person<GraphSeriesProperties> person([this](GraphSeriesProperties& dialog) {
        Model().SetGridSize(4, 1);
        Control().Refresh();
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, Place(PartCode::Series, 2));
    EXPECT_TRUE(person.WasAsked());
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages[0].text.startsWith(QStringLiteral("Error 91: ")));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ElementEditingTest, TurningAChartByHandMakesItModified) {
    Model().SetChartType(ChartType::Bar3D);
    form->RefreshControlBar();
    Turn(*form, {0, 0});
    EXPECT_FALSE(form->Modified());
    Turn(*form, {30, 0});
    EXPECT_TRUE(form->Modified());
}

TEST_F(ElementEditingTest, TheCaptionIsInTheLanguageOfItsTime) {
    for (std::int16_t language = 0; language <= 3; ++language) {
        SetLanguageCode(language);
        EXPECT_EQ(ElementEditing::Caption(static_cast<int>(PartCode::Series)),
                  LocalText(TextKey::SeriesProperties));
        EXPECT_EQ(ElementEditing::Caption(static_cast<int>(PartCode::Plot)), QString());
        EXPECT_EQ(ElementEditing::Caption(NoPart), QString());
    }
}

TEST_F(ElementEditingTest, AGridLineBelongsToThePlotAndLeadsToThePageOfTheGrid) {
    Model().Plot.Axis(AxisId::Y).AxisGrid.MajorPen.Style = PenStyle::Solid;
    Control().Refresh();
    const Scene& scene = Control().CurrentScene();
    std::optional<QPoint> place;
    for (const std::size_t index : Find(scene, {PartCode::Axis, static_cast<int>(AxisId::Y), AnyIndex})) {
        // A level line of an upright axis, met where no bar covers it.
        const Box& bounds = scene.shapes[index].bounds;
        if (bounds.Width() < bounds.Height()) continue;
        const Point right{bounds.right - 3, bounds.Center().y};
        if (Hit(scene, right) == index)
            place = QPointF(right.x / PointsPerPixel, right.y / PointsPerPixel).toPoint();
    }
    ASSERT_TRUE(place.has_value());
    QString page;
    Person<GraphTypes> person([&](GraphTypes& dialog) {
        const auto& tabs = The<QTabWidget>(dialog, "TabTypes");
        page = tabs.tabText(tabs.currentIndex()).remove(u'&');
        ClickIn(dialog, "btnCancel");
    });
    DoubleClick(*form, *place);
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(page, "Grid");
    EXPECT_EQ(Control().SelectedPart(), (ChartPart{static_cast<int>(PartCode::Plot), 1}));

    OpenMenu(*form, *place);
    EXPECT_FALSE(First().isVisible());
    page.clear();
    Person<GraphTypes> again([&](GraphTypes& dialog) {
        const auto& tabs = The<QTabWidget>(dialog, "TabTypes");
        page = tabs.tabText(tabs.currentIndex()).remove(u'&');
        ClickIn(dialog, "btnCancel");
    });
    ChooseEntry(*form, "optChart");
    EXPECT_EQ(page, "Grid");
}
