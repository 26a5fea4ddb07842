#include "dialogs/GraphTextProperties.h"

#include "DialogsTest.h"
#include "base/Units.h"
#include "chartcontrol/model/Chart.h"
#include "dialogs/OrientationButton.h"
#include "support/Raises.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

using namespace QmChart6;

namespace {

class GraphTextPropertiesTest : public DialogsTest {
protected:
    GraphTextPropertiesTest() {
        chart.Title.Text = QStringLiteral("Turnover");
        chart.Title.VtFont = {.Name = QStringLiteral("Arial"),
                              .Size = 8.25,
                              .Style = FontBold | FontItalic,
                              .Effect = FontUnderline,
                              .VtColor = {1, 2, 3}};
        chart.Title.TextLayout = {.Orientation = Orientation::Up,
                                  .HorzAlignment = HorizontalAlignment::Right,
                                  .VertAlignment = VerticalAlignment::Bottom};
        chart.Legend.TextLayout.Orientation = Orientation::Down;
    }

    TextTarget Title() {
        return
            [this] { return TextElement{&chart.Title.Text, &chart.Title.VtFont, &chart.Title.TextLayout}; };
    }
    TextTarget Legend() {
        return [this] { return TextElement{nullptr, &chart.Legend.VtFont, &chart.Legend.TextLayout}; };
    }
    static bool IsBlack(QWidget& form, int index) {
        const auto name = QStringLiteral("btnOrientation%1").arg(index).toLatin1();
        auto& button = static_cast<OrientationButton&>(The<QPushButton>(form, name.constData()));
        return button.BackColor() == QColor(Qt::black);
    }

    Chart chart;
    GraphTextProperties dialog{nullptr};
};

} // namespace

TEST_F(GraphTextPropertiesTest, ShowsWhatTheElementHas) {
    desktop.deals = {[this](QDialog& form) {
        EXPECT_EQ(The<QLineEdit>(form, "TText").text(), "Turnover");
        EXPECT_EQ(Items(List(form, "cbHorizontal")), QStringList({"Left", "Right", "Center"}));
        EXPECT_EQ(Items(List(form, "cbVertical")), QStringList({"Top", "Bottom", "Center"}));
        EXPECT_EQ(List(form, "cbHorizontal").currentIndex(), 1);
        EXPECT_EQ(List(form, "cbVertical").currentIndex(), 1);
        EXPECT_EQ(dialog.frmOrientation(), 2);
        for (int index = 0; index < 4; ++index) EXPECT_EQ(IsBlack(form, index), index == 2) << index;
        EXPECT_EQ(form.windowTitle(), "Text Properties");
        Click(form, "btnFont");
    }};
    dialog.Execute(Title(), true, true, true);
    ASSERT_EQ(desktop.fontStarts.size(), 1);
    EXPECT_EQ(desktop.fontStarts[0], (FontChoice{.family = QStringLiteral("Arial"),
                                                 .size = 8.25,
                                                 .bold = true,
                                                 .italic = true,
                                                 .underline = true,
                                                 .colour = QColor(1, 2, 3)}));
}

TEST_F(GraphTextPropertiesTest, OkWithoutAChangeWritesWhatWasThere) {
    const Chart before = chart;
    desktop.deals = {Ok};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart, before);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTextPropertiesTest, WritesTextFontOrientationAndAlignmentOnOk) {
    const FontChoice chosen{.family = QStringLiteral("Courier"),
                            .size = 20,
                            .bold = true,
                            .strikethrough = true,
                            .colour = QColor(10, 200, 30)};
    desktop.fonts = {chosen};
    desktop.deals = {[](QDialog& form) {
        The<QLineEdit>(form, "TText").setText(QStringLiteral("Sales"));
        List(form, "cbHorizontal").setCurrentIndex(0);
        List(form, "cbVertical").setCurrentIndex(2);
        Click(form, "btnFont");
        Click(form, "btnOrientation3");
        Ok(form);
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart.Title.Text, "Sales");
    EXPECT_EQ(chart.Title.VtFont, (Font{.Name = QStringLiteral("Courier"),
                                        .Size = 20,
                                        .Style = FontBold,
                                        .Effect = FontStrikethrough,
                                        .VtColor = {10, 200, 30}}));
    EXPECT_EQ(chart.Title.TextLayout, (TextLayout{.Orientation = Orientation::Down,
                                                  .HorzAlignment = HorizontalAlignment::Left,
                                                  .VertAlignment = VerticalAlignment::Center}));
    EXPECT_TRUE(dialog.FontChosen());
}

TEST_F(GraphTextPropertiesTest, WithoutLeaveToEditTheTextItShowsDataValuesAndWritesNoText) {
    desktop.deals = {[](QDialog& form) {
        EXPECT_EQ(The<QLineEdit>(form, "TText").text(), "Data Values");
        EXPECT_FALSE(The<QLineEdit>(form, "TText").isEnabled());
        EXPECT_FALSE(The<QLabel>(form, "lblText").isEnabled());
        Ok(form);
    }};
    dialog.Execute(Title(), false, true, true);
    EXPECT_EQ(chart.Title.Text, "Turnover");
}

TEST_F(GraphTextPropertiesTest, ComesBackAfterApplyWithTheSameValuesAndCancelKeepsWhatApplyWrote) {
    int written = 0;
    QObject::connect(&dialog, &PropertyDialog::Written, [&] { ++written; });
    desktop.deals = {[](QDialog& form) {
                         The<QLineEdit>(form, "TText").setText(QStringLiteral("Applied"));
                         Apply(form);
                     },
                     [this](QDialog& form) {
                         EXPECT_EQ(chart.Title.Text, "Applied");
                         EXPECT_EQ(The<QLineEdit>(form, "TText").text(), "Applied");
                         The<QLineEdit>(form, "TText").setText(QStringLiteral("Dropped"));
                         Cancel(form);
                     }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart.Title.Text, "Applied");
    EXPECT_EQ(desktop.shown, 2);
    EXPECT_EQ(written, 1);
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_FALSE(dialog.ApplyPressed());
}

TEST_F(GraphTextPropertiesTest, CancelLeavesTheChartAsItWas) {
    const Chart before = chart;
    desktop.fonts = {{.family = QStringLiteral("Courier"), .size = 30, .colour = QColor(Qt::red)}};
    desktop.deals = {[](QDialog& form) {
        The<QLineEdit>(form, "TText").setText(QStringLiteral("Dropped"));
        List(form, "cbHorizontal").setCurrentIndex(0);
        Click(form, "btnFont");
        Click(form, "btnOrientation0");
        Cancel(form);
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart, before);
}

TEST_F(GraphTextPropertiesTest, ABoldItalicOutlinedFontComesBackBoldAndItalicOnly) {
    chart.Title.VtFont.Style = FontBold | FontItalic | FontOutline;
    desktop.deals = {Ok};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart.Title.VtFont.Style, FontBold | FontItalic);
}

TEST_F(GraphTextPropertiesTest, SplitsAColourIntoItsComponents) {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    GraphTextProperties::ColorToRGB(197121, red, green, blue);
    EXPECT_EQ(red, 1);
    EXPECT_EQ(green, 2);
    EXPECT_EQ(blue, 3);
    GraphTextProperties::ColorToRGB(0xff, red, green, blue);
    EXPECT_EQ(red, 255);
    EXPECT_EQ(green, 0);
    EXPECT_EQ(blue, 0);
}

TEST_F(GraphTextPropertiesTest, AColourOfMoreThanSixHexadecimalDigitsRaisesAnError) {
    std::uint8_t component = 0;
    const auto split = [&](std::int32_t colour) {
        GraphTextProperties::ColorToRGB(colour, component, component, component);
        return 0;
    };
    EXPECT_RAISES(5, split(0x1000000));
    EXPECT_RAISES(5, split(static_cast<std::int32_t>(0x8000000Fu)));
    EXPECT_EQ(split(0xffffff), 0);
}

TEST_F(GraphTextPropertiesTest, ClickingTheChosenOrientationLeavesItBlackAndTheValueUnchanged) {
    desktop.deals = {[this](QDialog& form) {
        Click(form, "btnOrientation2");
        EXPECT_TRUE(IsBlack(form, 2));
        EXPECT_EQ(dialog.frmOrientation(), 2);
        Click(form, "btnOrientation1");
        EXPECT_TRUE(IsBlack(form, 1));
        EXPECT_FALSE(IsBlack(form, 2));
        EXPECT_EQ(dialog.frmOrientation(), 1);
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTextPropertiesTest, TheFormsSizeFollowsTheApplyButtonAfterAnyResize) {
    desktop.deals = {[](QDialog& form) {
        const auto& apply = The<QPushButton>(form, "btnApply");
        for (const QSize size : {form.size(), QSize(700, 400), QSize(10, 10), QSize(900, 300)}) {
            form.resize(size);
            QApplication::processEvents();
            const QPoint place = apply.mapTo(&form, QPoint(apply.width(), apply.height()));
            EXPECT_EQ(TwipsOfPixels(form.width()) + NominalFrameWidth, TwipsOfPixels(place.x()) + 240);
            EXPECT_EQ(TwipsOfPixels(form.height()) + NominalFrameHeight, TwipsOfPixels(place.y()) + 420);
        }
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTextPropertiesTest, WhatIsNotAllowedIsDisabledButWrittenAllTheSame) {
    const TextLayout before = chart.Legend.TextLayout;
    desktop.deals = {[](QDialog& form) {
        for (const char* name : {"cbHorizontal", "cbVertical", "lblHorizontal", "lblVertical", "frmAlignment",
                                 "frmOrientButtons", "btnOrientation0", "btnOrientation3"})
            EXPECT_FALSE(The<QWidget>(form, name).isEnabled()) << name;
        Ok(form);
    }};
    dialog.Execute(Legend(), false, false, false);
    EXPECT_EQ(chart.Legend.TextLayout.Orientation, Orientation::Horizontal);
    // A list that was never set says nothing.
    EXPECT_EQ(chart.Legend.TextLayout.HorzAlignment, before.HorzAlignment);
    EXPECT_EQ(chart.Legend.TextLayout.VertAlignment, before.VertAlignment);
}

TEST_F(GraphTextPropertiesTest, ALaterElementGetsTheOrientationAndAlignmentThatAnEarlierOneLeft) {
    desktop.deals = {Ok, Ok};
    dialog.Execute(Title(), true, true, true);
    dialog.Execute(Legend(), false, false, false);
    EXPECT_EQ(chart.Legend.TextLayout, chart.Title.TextLayout);
}

TEST_F(GraphTextPropertiesTest, ACancelledFontPickerChangesNothing) {
    const Chart before = chart;
    desktop.deals = {[](QDialog& form) {
        Click(form, "btnFont");
        Ok(form);
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(chart, before);
    EXPECT_FALSE(dialog.FontChosen());
}

TEST_F(GraphTextPropertiesTest, AnElementThatIsGoneRaisesAnError) {
    EXPECT_RAISES(91, (dialog.Execute(TextTarget(), true, true, true), 0));
    bool gone = false;
    desktop.deals = {[&gone](QDialog& form) {
        gone = true;
        Ok(form);
    }};
    const auto whileItLasts = [&] { return gone ? TextElement{} : Title()(); };
    EXPECT_RAISES(91, (dialog.Execute(whileItLasts, true, true, true), 0));
}

TEST_F(GraphTextPropertiesTest, AnElementWithoutATextRaisesAnErrorWhereItsTextMayBeEdited) {
    EXPECT_RAISES(445, (dialog.Execute(Legend(), true, true, true), 0));
}

TEST_F(GraphTextPropertiesTest, AnOrientationThatIsNoneRaisesAnError) {
    const auto set = [this](std::int16_t value) {
        dialog.SetFrmOrientation(value);
        return 0;
    };
    EXPECT_RAISES(9, set(4));
    EXPECT_RAISES(9, set(-1));
}

TEST_F(GraphTextPropertiesTest, TheTextIsSelectedAndHasTheFocusWhenItIsFirstShown) {
    desktop.deals = {[](QDialog& form) {
        auto& text = The<QLineEdit>(form, "TText");
        EXPECT_EQ(form.focusWidget(), &text);
        EXPECT_EQ(text.selectedText(), "Turnover");
    }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTextPropertiesTest, ATitleThatTheCallerSetsStays) {
    dialog.setWindowTitle(QStringLiteral("Chart Title Properties"));
    desktop.deals = {[](QDialog& form) { EXPECT_EQ(form.windowTitle(), "Chart Title Properties"); }};
    dialog.Execute(Title(), true, true, true);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(GraphTextPropertiesTest, ALineOfTheTextIsShownInItsFont) {
    chart.Title.VtFont.VtColor = {200, 0, 0};
    desktop.fonts = {
        FontChoice{.family = QStringLiteral("Liberation Serif"), .size = 18, .colour = QColor(0, 0, 200)}};
    desktop.deals = {[](QDialog& form) {
        auto& sample = The<QWidget>(form, "lblSample");
        EXPECT_EQ(sample.accessibleName(), "Turnover");
        const auto count = [&](const QColor& colour) {
            const QImage picture = sample.grab().toImage();
            int found = 0;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x) found += picture.pixelColor(x, y) == colour ? 1 : 0;
            return found;
        };
        EXPECT_GT(count(QColor(200, 0, 0)), 10);
        Click(form, "btnFont");
        EXPECT_GT(count(QColor(0, 0, 200)), 20);
        EXPECT_EQ(count(QColor(200, 0, 0)), 0);
        The<QLineEdit>(form, "TText").setText(QStringLiteral("Sales"));
        EXPECT_EQ(sample.accessibleName(), "Sales");
    }};
    dialog.Execute(Title(), true, true, true);
}
