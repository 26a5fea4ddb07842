#include "support/ChartDesk.h"
#include "support/Person.h"
#include "support/SampleCharts.h"
#include "support/ScriptedDesktop.h"

#include "chartcontrol/scene/HitTest.h"
#include "dialogs/GraphTextProperties.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// A viewer whose title, footnote and legend are moved about by hand.
class MoveByHandTest : public testing::TestWithParam<PartCode> {
protected:
    MoveByHandTest() {
        Chart& chart = Model();
        chart = Samples::ChartOf(4, 2, [](int row, int column) { return 10.0 * row + column; });
        chart.Title.Text = QStringLiteral("Turnover");
        chart.Footnote.Text = QStringLiteral("In thousands");
        chart.ShowLegend = true;
    }
    void SetUp() override {
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
        form->RefreshControlBar();
        form->SetModified(false);
    }
    ~MoveByHandTest() override { form->SetModified(false); }

    [[nodiscard]] ChartControl& Control() const { return form->ChartImage(); }
    [[nodiscard]] Chart& Model() const { return Control().Model(); }
    [[nodiscard]] Location& Where() const { return *MovableLocation(Model(), static_cast<int>(GetParam())); }
    [[nodiscard]] Point Middle() const {
        return BoundsOf(Control().CurrentScene(), {GetParam(), AnyIndex, AnyIndex}).value().Center();
    }
    /// Presses on the part and draws it so far that its middle comes to a place, in points.
    void DrawTo(Point place) const {
        from = PlaceOf(Control(), {GetParam(), AnyIndex, AnyIndex});
        const Point middle = Middle();
        const QPoint by = QPointF((place.x - middle.x) * 4 / 3, (place.y - middle.y) * 4 / 3).toPoint();
        QTest::mousePress(&Control(), Qt::LeftButton, {}, from);
        for (const QPoint& at : {from + by / 3, from + by}) {
            QMouseEvent move(QEvent::MouseMove, at, Control().mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(&Control(), &move);
        }
        to = from + by;
    }
    void LetGo() const { QTest::mouseRelease(&Control(), Qt::LeftButton, {}, to); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(&Control(), key, modifiers);
    }

    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    std::shared_ptr<GraphForm> form = std::make_shared<GraphForm>();
    mutable QPoint from;
    mutable QPoint to;
};

constexpr Point Anywhere{190, 150};

} // namespace

TEST_P(MoveByHandTest, WhatIsDrawnStandsWhereItWasLetGo) {
    DrawTo(Anywhere);
    LetGo();
    EXPECT_EQ(Where().LocationType, LocationType::Custom);
    EXPECT_NEAR(Middle().x, Anywhere.x, 2);
    EXPECT_NEAR(Middle().y, Anywhere.y, 2);
    EXPECT_TRUE(form->Modified());
    EXPECT_EQ(Where().Within, (Coordinate{Control().width() * 0.75, Control().height() * 0.75}));
}

TEST_P(MoveByHandTest, ItIsOneStepThatIsTakenBackAndDoneAgain) {
    const Location before = Where();
    DrawTo(Anywhere);
    LetGo();
    const Location after = Where();
    form->Undo();
    EXPECT_EQ(Where(), before);
    EXPECT_FALSE(form->Modified());
    form->Redo();
    EXPECT_EQ(Where(), after);
}

TEST_P(MoveByHandTest, EscapeTakesItBackWhileItIsDrawn) {
    const Chart before = Model();
    DrawTo(Anywhere);
    Key(Qt::Key_Escape);
    LetGo();
    EXPECT_EQ(Model(), before);
    EXPECT_FALSE(form->Modified());
    EXPECT_EQ(static_cast<PartCode>(Control().SelectedPart().part), GetParam());
}

TEST_P(MoveByHandTest, NearAPlaceItTakesThatPlace) {
    const Size size = Control().CurrentScene().size;
    const Box box = BoundsOf(Control().CurrentScene(), {GetParam(), AnyIndex, AnyIndex}).value();
    const double left = 12 + box.Width() / 2 + 5;
    const double bottom = size.height - 12 - box.Height() / 2 - 5;
    DrawTo({left, bottom});
    LetGo();
    EXPECT_EQ(Where().LocationType, LocationType::BottomLeft);
    DrawTo({size.width / 2 + 4, size.height / 2 - 4});
    LetGo();
    EXPECT_EQ(Where().LocationType, LocationType::Custom);
    EXPECT_NEAR(Middle().x, size.width / 2, 1);
    EXPECT_NEAR(Middle().y, size.height / 2, 1);
}

TEST_P(MoveByHandTest, CtrlAndTheArrowsMoveItByAPointAndHomePutsItBack) {
    const Location before = Where();
    QTest::mouseClick(&Control(), Qt::LeftButton, {}, PlaceOf(Control(), {GetParam(), AnyIndex, AnyIndex}));
    DrawTo(Anywhere);
    LetGo();
    const Point start = Middle();
    for (int i = 0; i < 3; ++i) Key(Qt::Key_Right, Qt::ControlModifier);
    Key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_NEAR(Middle().x, start.x + 3, 0.1);
    EXPECT_NEAR(Middle().y, start.y - 1, 0.1);
    Key(Qt::Key_Home);
    EXPECT_EQ(Where(), before);
}

TEST_P(MoveByHandTest, ItDoesNotLeaveTheChart) {
    DrawTo({-300, -300});
    LetGo();
    const Box box = BoundsOf(Control().CurrentScene(), {GetParam(), AnyIndex, AnyIndex}).value();
    EXPECT_GE(box.left, -0.01);
    EXPECT_GE(box.top, -0.01);
}

TEST_P(MoveByHandTest, AClickMovesNothingAndADoubleClickStillEdits) {
    const Chart before = Model();
    Person<GraphTextProperties> person([](GraphTextProperties& dialog) { ClickIn(dialog, "btnCancel"); });
    DoubleClick(*form, PlaceOf(Control(), {GetParam(), AnyIndex, AnyIndex}));
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(Model(), before);
}

TEST_P(MoveByHandTest, ItStandsAtTheSameSharesOfALargerWindow) {
    DrawTo(Anywhere);
    LetGo();
    const Size before = Control().CurrentScene().size;
    form->resize(form->width() + 300, form->height() + 200);
    QApplication::processEvents();
    const Size after = Control().CurrentScene().size;
    ASSERT_GT(after.width, before.width);
    EXPECT_NEAR(Middle().x / after.width, Anywhere.x / before.width, 0.01);
    EXPECT_NEAR(Middle().y / after.height, Anywhere.y / before.height, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Parts, MoveByHandTest,
                         testing::Values(PartCode::Title, PartCode::Footnote, PartCode::Legend));
