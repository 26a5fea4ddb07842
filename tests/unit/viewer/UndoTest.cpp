#include "chartcontrol/paint/QtColour.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "dialogs/GraphConfiguration.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "support/ChartDesk.h"
#include "support/Person.h"
#include "support/SampleCharts.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "text/LocalText.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>

#include <random>

using namespace QmChart6;

namespace {

class UndoTest : public testing::Test {
protected:
    UndoTest() {
        SetLanguageCode(0);
        SetConfigurationFolder(store.Folder());
        Chart& chart = Model();
        chart = Samples::ChartOf(4, 3, [](int row, int column) { return 10.0 * row + column; });
        chart.Title.Text = QStringLiteral("Turnover");
        form->SetGraphId(QStringLiteral("SALES"));
    }
    void SetUp() override {
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        form->RefreshControlBar();
        form->SetModified(false);
    }
    ~UndoTest() override { form->SetModified(false); }

    [[nodiscard]] Chart& Model() const { return form->ChartImage().Model(); }
    /// What a person sees of the viewer's look, and can take back.
    [[nodiscard]] LookState Look() const {
        LookState seen = form->Look();
        seen.chart.Row = seen.chart.Column = 1;
        return seen;
    }
    /// Presses keys once the window has them, which it has not at once when a dialog was closed.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        QTest::keyClick(form.get(), key, modifiers);
    }
    void Undo() const { Press(Qt::Key_Z, Qt::ControlModifier); }
    void Redo() const { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    /// What was done is one step: taken back and done again by the keys.
    void ExpectOneStep(const std::function<void()>& action) const {
        const LookState before = Look();
        const bool modifiedBefore = form->Modified();
        action();
        const LookState after = Look();
        const bool modifiedAfter = form->Modified();
        ASSERT_NE(before, after);
        Undo();
        EXPECT_EQ(Look(), before);
        EXPECT_EQ(form->Modified(), modifiedBefore);
        ExpectBarInStep();
        Redo();
        EXPECT_EQ(Look(), after);
        EXPECT_EQ(form->Modified(), modifiedAfter);
        ExpectBarInStep();
        Undo();
        EXPECT_EQ(Look(), before);
        Press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(Look(), after);
    }
    void ExpectBarInStep() const {
        if (!form->ControlBar()) return;
        const auto& bar = The<ViewerToolBar>(*form, "tbControlBar");
        EXPECT_EQ(form->Selected(), static_cast<int>(Model().chartType()));
        EXPECT_EQ(bar.IsPressed(BarButton::Stack), form->Look().stacked != 0);
        EXPECT_EQ(bar.IsPressed(BarButton::FullStack), form->Look().fullStacked != 0);
        EXPECT_EQ(bar.IsPressed(BarButton::Legend), Model().ShowLegend);
        EXPECT_EQ(bar.IsPressed(BarButton::Flip), Model().Plot.DataSeriesInRow);
    }
    /// Someone who loads the look of that name in the dialog.
    static Person<GraphConfiguration> Loader(const QString& name) {
        return Person<GraphConfiguration>([name](GraphConfiguration& dialog) {
            auto& list = The<QListWidget>(dialog, "lstConfig");
            list.setCurrentItem(list.findItems(name, Qt::MatchExactly).at(0));
            ClickIn(dialog, "chkTitles");
            ClickIn(dialog, "btnOK");
        });
    }
    void SaveAs(const QString& name) const {
        form->SetQmConfig(name);
        SaveConfiguration(*form);
    }

    TestStore store{Engine::Sqlite, ConfigurationSchema()};
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    std::shared_ptr<GraphForm> form = std::make_shared<GraphForm>();
};

} // namespace

TEST_F(UndoTest, EachOptionButtonIsAStep) {
    for (const BarButton button :
         {BarButton::ThreeD, BarButton::Stack, BarButton::FullStack, BarButton::Flip, BarButton::Legend})
        ExpectOneStep([&] { ClickButton(*form, button); });
}

TEST_F(UndoTest, ReleasingStackTakesThePercentScaleAlongInOneStep) {
    ClickButton(*form, BarButton::Stack);
    ClickButton(*form, BarButton::FullStack);
    ExpectOneStep([&] { ClickButton(*form, BarButton::Stack); });
    EXPECT_EQ(form->Look().fullStacked, 0);
}

TEST_F(UndoTest, ChoosingATypeIsAStep) {
    for (const char* type : {"Line", "Pie", "Combination", "XY (Scatter)"})
        ExpectOneStep([&] { ChooseType(*form, QLatin1String(type)); });
}

TEST_F(UndoTest, ChoosingTheSameTypeAgainIsNoStep) {
    const LookState first = Look();
    ChooseType(*form, QStringLiteral("Line"));
    ChooseType(*form, QStringLiteral("Line"));
    Undo();
    EXPECT_EQ(Look(), first);
}

TEST_F(UndoTest, EditingTheTitleIsAStep) {
    ExpectOneStep([&] {
        Person<GraphTextProperties> person([](GraphTextProperties& dialog) {
            TypeInto(The<QLineEdit>(dialog, "TText"), QStringLiteral("Costs"));
            ClickIn(dialog, "btnOK");
        });
        DoubleClick(*form, PlaceOf(form->ChartImage(), {PartCode::Title}));
    });
    EXPECT_EQ(Model().Title.Text, "Costs");
}

TEST_F(UndoTest, RenamingAndColouringASeriesIsAStep) {
    desktop.colours = {QColor(10, 20, 30)};
    ExpectOneStep([&] {
        Person<GraphSeriesProperties> person([](GraphSeriesProperties& dialog) {
            TypeInto(The<QLineEdit>(dialog, "txtName"), QStringLiteral("North"));
            ClickIn(dialog, "btnColor");
            ClickIn(dialog, "btnOK");
        });
        DoubleClick(*form, PlaceOf(form->ChartImage(), {PartCode::Series, 2, AnyIndex}));
    });
    EXPECT_EQ(Model().DataGrid.ColumnLabel(2), "North");
    EXPECT_EQ(Model().Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).Brush.FillColor,
              (Colour{10, 20, 30}));
}

TEST_F(UndoTest, TheGraphDialogIsAStep) {
    ExpectOneStep([&] {
        Person<GraphTypes> person([](GraphTypes& dialog) {
            ClickIn(dialog, "CStackSeries");
            ClickIn(dialog, "btnOK");
        });
        DoubleClick(*form, PlaceOfPlot(form->ChartImage()));
    });
    EXPECT_EQ(form->Look().stacked, 1);
}

TEST_F(UndoTest, ACancelledDialogIsNoStep) {
    const LookState first = Look();
    ClickButton(*form, BarButton::Legend);
    Person<GraphTypes> person([](GraphTypes& dialog) {
        ClickIn(dialog, "CStackSeries");
        ClickIn(dialog, "btnCancel");
    });
    DoubleClick(*form, PlaceOfPlot(form->ChartImage()));
    EXPECT_TRUE(person.WasAsked());
    Undo();
    EXPECT_EQ(Look(), first);
}

TEST_F(UndoTest, ApplyIsAStepOfItsOwn) {
    const LookState first = Look();
    LookState applied = first;
    std::optional<Person<GraphTextProperties>> again;
    Person<GraphTextProperties> person([&](GraphTextProperties& dialog) {
        TypeInto(The<QLineEdit>(dialog, "TText"), QStringLiteral("Applied"));
        again.emplace([&](GraphTextProperties& shownAgain) {
            applied = Look();
            TypeInto(The<QLineEdit>(shownAgain, "TText"), QStringLiteral("Confirmed"));
            ClickIn(shownAgain, "btnOK");
        });
        ClickIn(dialog, "btnApply");
    });
    DoubleClick(*form, PlaceOf(form->ChartImage(), {PartCode::Title}));
    ASSERT_TRUE(again && again->WasAsked());
    EXPECT_EQ(applied.chart.Title.Text, "Applied");
    EXPECT_EQ(Model().Title.Text, "Confirmed");
    Undo();
    EXPECT_EQ(Look(), applied);
    Undo();
    EXPECT_EQ(Look(), first);
}

TEST_F(UndoTest, TurningByHandIsAStepHoweverManyMovesItTakes) {
    ClickButton(*form, BarButton::ThreeD);
    ExpectOneStep([&] { Turn(*form, {40, -20}); });
}

TEST_F(UndoTest, LoadingALookByTheMenuIsAStepThatLeavesModifiedAsItIs) {
    SaveAs(QStringLiteral("Plain"));
    ClickButton(*form, BarButton::Legend);
    ExpectOneStep([&] {
        auto loader = Loader(QStringLiteral("Plain"));
        OpenMenu(*form, PlaceOfPlot(form->ChartImage()));
        ChooseEntry(*form, "optLoadConfig");
        EXPECT_TRUE(loader.WasAsked());
    });
    EXPECT_TRUE(form->Modified());
}

TEST_F(UndoTest, LoadingALookByTheBarIsAStepAndGoingBackFromItIsAChange) {
    SaveAs(QStringLiteral("Plain"));
    ClickButton(*form, BarButton::Legend);
    const LookState before = Look();
    {
        auto loader = Loader(QStringLiteral("Plain"));
        ClickButton(*form, BarButton::Load);
        EXPECT_TRUE(loader.WasAsked());
    }
    const LookState loaded = Look();
    EXPECT_FALSE(form->Modified());
    Undo();
    EXPECT_EQ(Look(), before);
    EXPECT_TRUE(form->Modified());
    Redo();
    EXPECT_EQ(Look(), loaded);
    EXPECT_FALSE(form->Modified());
}

TEST_F(UndoTest, GoingBackBehindASaveIsAChange) {
    ClickButton(*form, BarButton::Legend);
    form->SetQmConfig(QStringLiteral("Kept"));
    ClickButton(*form, BarButton::Save);
    EXPECT_FALSE(form->Modified());
    Undo();
    EXPECT_TRUE(form->Modified());
    Redo();
    EXPECT_FALSE(form->Modified());
}

TEST_F(UndoTest, HidingTheControlBarIsAStep) {
    ExpectOneStep([&] {
        OpenMenu(*form, PlaceOfPlot(form->ChartImage()));
        ChooseEntry(*form, "optControlBar");
    });
    EXPECT_FALSE(form->ControlBar());
}

TEST_F(UndoTest, NothingIsTakenBackThatTheHostDid) {
    ClickButton(*form, BarButton::Legend);
    Model() = Samples::ChartOf(2, 2, [](int row, int column) { return row - column; });
    form->RestartHistory();
    const LookState refreshed = Look();
    Undo();
    EXPECT_EQ(Look(), refreshed);
}

TEST_F(UndoTest, AnEditThatWasBegunBeforeTheHostCameBeginsAfterIt) {
    LookState refreshed = Look();
    Person<GraphTextProperties> person([&](GraphTextProperties& dialog) {
        Model().DataGrid.SetValue(1, 1, 99);
        form->RestartHistory();
        refreshed = Look();
        TypeInto(The<QLineEdit>(dialog, "TText"), QStringLiteral("Costs"));
        ClickIn(dialog, "btnOK");
    });
    DoubleClick(*form, PlaceOf(form->ChartImage(), {PartCode::Title}));
    ASSERT_TRUE(person.WasAsked());
    EXPECT_EQ(Model().Title.Text, "Costs");
    Undo();
    EXPECT_EQ(Look(), refreshed);
    EXPECT_EQ(Model().DataGrid.Value(1, 1), 99);
    Undo();
    EXPECT_EQ(Look(), refreshed);
}

TEST_F(UndoTest, RandomSequencesGoAllTheWayBackAndForth) {
    std::mt19937 random(6);
    for (int sequence = 0; sequence < 10; ++sequence) {
        form->RestartHistory();
        const LookState first = Look();
        for (int step = 0; step < 25; ++step) {
            switch (random() % 9) {
            case 0:
                Undo();
                break;
            case 1:
                Redo();
                break;
            case 2:
                ChooseType(*form, The<QComboBox>(*form, "cbType").itemText(static_cast<int>(random() % 7)));
                break;
            case 3:
                Turn(*form, {static_cast<int>(random() % 50), 0});
                break;
            default: {
                const int number = 2 + static_cast<int>(random() % 5);
                ClickButton(*form, static_cast<BarButton>(number));
            }
            }
            ExpectBarInStep();
        }
        for (int step = 0; step < 30; ++step) Redo();
        const LookState last = Look();
        for (int step = 0; step < 30; ++step) Undo();
        EXPECT_EQ(Look(), first) << sequence;
        for (int step = 0; step < 30; ++step) Redo();
        EXPECT_EQ(Look(), last) << sequence;
    }
}
