#include "dialogs/PatternPicker.h"

#include "DialogsTest.h"

#include <QSignalSpy>

#include <set>

using namespace QmChart6;

namespace {

class PatternPickerTest : public DialogsTest {
protected:
    PatternPickerTest() {
        picker.SetColours({200, 0, 0}, {255, 255, 255});
        picker.show();
        picker.activateWindow();
        picker.setFocus();
    }

    const PatternPicker::Box& Find(BrushStyle style, int index) {
        for (const PatternPicker::Box& box : picker.Boxes())
            if (box.style == style && box.index == index) return box;
        throw std::runtime_error("no such box");
    }
    [[nodiscard]] bool Shows(const PatternPicker::Box& box) const {
        return picker.Style() == box.style && picker.Index() == box.index;
    }
    [[nodiscard]] int Selected() const {
        for (int box = 0; box < static_cast<int>(picker.Boxes().size()); ++box)
            if (Shows(picker.Boxes()[static_cast<std::size_t>(box)])) return box;
        return -1;
    }

    PatternPicker picker;
};

} // namespace

TEST_F(PatternPickerTest, ShowsTheTwoPlainChoicesEveryHatchAndEveryPattern) {
    std::set<std::pair<BrushStyle, int>> choices;
    for (const auto& box : picker.Boxes()) choices.insert({box.style, box.index});
    EXPECT_EQ(choices.size(), 26U);
    EXPECT_EQ(picker.Boxes().size(), 26U);
    for (int index = 0; index < 6; ++index) EXPECT_EQ(choices.count({BrushStyle::Hatch, index}), 1U);
    for (int index = 0; index < 18; ++index) EXPECT_EQ(choices.count({BrushStyle::Pattern, index}), 1U);
}

TEST_F(PatternPickerTest, NoTwoBoxesOverlapAndAllCanBeSeen) {
    for (const auto& box : picker.Boxes()) {
        EXPECT_TRUE(picker.rect().contains(box.place));
        for (const auto& other : picker.Boxes())
            EXPECT_TRUE(&other == &box || !box.place.intersects(other.place));
    }
}

TEST_F(PatternPickerTest, BoxesStandInTheirGroupAsTheyAreNumbered) {
    const QPoint origin(2, 2);
    EXPECT_EQ(Find(BrushStyle::None, 0).place, QRect(origin, QSize(60, 60)));
    EXPECT_EQ(Find(BrushStyle::Solid, 1).place, QRect(origin + QPoint(60, 0), QSize(60, 60)));
    for (int index = 0; index < 6; ++index)
        EXPECT_EQ(Find(BrushStyle::Hatch, index).place,
                  QRect(origin + QPoint(20 * index, 80), QSize(20, 20)));
    const QPoint first = Find(BrushStyle::Pattern, 0).place.topLeft();
    for (int index = 0; index < 18; ++index)
        EXPECT_EQ(Find(BrushStyle::Pattern, index).place,
                  QRect(first + QPoint(20 * (index % 3), 20 * (index / 3)), QSize(20, 20)));
}

TEST_F(PatternPickerTest, AClickTakesExactlyTheBoxUnderThePointer) {
    for (const auto& box : picker.Boxes()) {
        const QRect place = box.place;
        for (const QPoint point :
             {place.center(), place.topLeft(), place.bottomRight(), place.topRight(), place.bottomLeft()}) {
            picker.Select(BrushStyle::Pattern, 99);
            QSignalSpy chosen(&picker, &PatternPicker::Chosen);
            QTest::mouseClick(&picker, Qt::LeftButton, {}, point);
            EXPECT_TRUE(Shows(box)) << static_cast<int>(box.style) << ' ' << box.index;
            EXPECT_EQ(chosen.count(), 1);
        }
    }
}

TEST_F(PatternPickerTest, AClickBesideTheBoxesOrWithAnotherButtonChoosesNothing) {
    picker.Select(BrushStyle::Hatch, 2);
    QTest::mouseClick(&picker, Qt::LeftButton, {}, QPoint(70, 72));
    QTest::mouseClick(&picker, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(&picker, Qt::RightButton, {}, Find(BrushStyle::Solid, 1).place.center());
    EXPECT_TRUE(Shows(Find(BrushStyle::Hatch, 2)));
}

TEST_F(PatternPickerTest, TheArrowsReachEveryBox) {
    QTest::keyClick(&picker, Qt::Key_Home);
    for (int box = 0; box < 26; ++box) {
        EXPECT_EQ(Selected(), box);
        QTest::keyClick(&picker, Qt::Key_Right);
    }
    EXPECT_EQ(Selected(), 25);
    for (int box = 25; box >= 0; --box) {
        EXPECT_EQ(Selected(), box);
        QTest::keyClick(&picker, Qt::Key_Left);
    }
    EXPECT_EQ(Selected(), 0);
    QTest::keyClick(&picker, Qt::Key_End);
    EXPECT_EQ(Selected(), 25);
}

TEST_F(PatternPickerTest, UpAndDownGoToTheBoxAboveAndBelow) {
    picker.Select(BrushStyle::Pattern, 4);
    QTest::keyClick(&picker, Qt::Key_Down);
    EXPECT_TRUE(Shows(Find(BrushStyle::Pattern, 7)));
    QTest::keyClick(&picker, Qt::Key_Up);
    QTest::keyClick(&picker, Qt::Key_Up);
    EXPECT_TRUE(Shows(Find(BrushStyle::Pattern, 1)));
    QTest::keyClick(&picker, Qt::Key_Up);
    EXPECT_TRUE(Shows(Find(BrushStyle::Pattern, 1)));
    QTest::keyClick(&picker, Qt::Key_Home);
    QTest::keyClick(&picker, Qt::Key_Down);
    EXPECT_EQ(picker.Style(), BrushStyle::Hatch);
}

TEST_F(PatternPickerTest, EveryBoxHasANameOfItsOwn) {
    std::set<QString> names;
    for (int box = 0; box < 26; ++box) names.insert(picker.NameOf(box));
    EXPECT_EQ(names.size(), 26U);
    EXPECT_EQ(names.count(QString()), 0U);
    picker.Select(BrushStyle::None, 0);
    EXPECT_EQ(picker.accessibleDescription(), "No fill");
}

TEST_F(PatternPickerTest, ANameSaysWhatABoxFillsWithInEveryLanguage) {
    const auto nameOf = [this](BrushStyle style, int index) {
        for (int box = 0; box < 26; ++box) {
            const PatternPicker::Box& one = picker.Boxes()[static_cast<std::size_t>(box)];
            if (one.style == style && one.index == index) return PatternPicker().NameOf(box);
        }
        return QString();
    };
    EXPECT_EQ(nameOf(BrushStyle::Solid, 1), "Solid");
    EXPECT_EQ(nameOf(BrushStyle::Pattern, 3), "Dots, 50%");
    EXPECT_EQ(nameOf(BrushStyle::Pattern, 5), "Bold horizontal lines");
    EXPECT_EQ(nameOf(BrushStyle::Pattern, 17), "Inverted trellis");
    EXPECT_EQ(nameOf(BrushStyle::Hatch, 4), "Crossed hatching");
    SetLanguageCode(1);
    EXPECT_EQ(nameOf(BrushStyle::None, 0), "Nenhum");
    EXPECT_EQ(nameOf(BrushStyle::Solid, 1), QStringLiteral("Sólido"));
    std::set<QString> all;
    for (std::int16_t language = 0; language < LanguageCount; ++language) {
        SetLanguageCode(language);
        all.insert(nameOf(BrushStyle::Pattern, 9));
    }
    EXPECT_EQ(all.size(), 4U);
}

TEST_F(PatternPickerTest, TheSelectionHasTheColourOfWhatIsChosen) {
    QPalette palette = picker.palette();
    palette.setColor(QPalette::Highlight, QColor(10, 200, 30));
    picker.setPalette(palette);
    picker.clearFocus();
    picker.Select(BrushStyle::Pattern, 4);
    const QRect place = Find(BrushStyle::Pattern, 4).place;
    EXPECT_EQ(picker.grab().toImage().pixelColor(place.left(), place.center().y()), QColor(10, 200, 30));
}

TEST_F(PatternPickerTest, BoxesLookDifferentFromEachOtherAndFollowTheColours) {
    const auto looks = [this] {
        const QImage all = picker.grab().toImage();
        std::set<QByteArray> pictures;
        for (const auto& box : picker.Boxes()) {
            const QImage inside =
                all.copy(box.place.adjusted(3, 3, -3, -3)
                             .intersected(QRect(box.place.topLeft() + QPoint(3, 3), QSize(14, 14))));
            pictures.insert(QByteArray(reinterpret_cast<const char*>(inside.constBits()),
                                       static_cast<qsizetype>(inside.sizeInBytes())));
        }
        return pictures;
    };
    const auto red = looks();
    EXPECT_EQ(red.size(), 26U);
    picker.SetColours({0, 0, 200}, {255, 255, 255});
    EXPECT_NE(looks(), red);
}

TEST_F(PatternPickerTest, TheSelectionIsDrawnRoundTheChosenBoxOnly) {
    const auto picture = [this](BrushStyle style, int index) {
        picker.Select(style, index);
        return picker.grab().toImage();
    };
    const QImage none = picture(BrushStyle::Pattern, 99);
    for (const auto& box : picker.Boxes()) {
        QImage selected = picture(box.style, box.index);
        EXPECT_NE(selected, none);
        const QRect place = box.place.adjusted(-2, -2, 2, 2);
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                if (selected.valid(x, y)) selected.setPixelColor(x, y, none.pixelColor(x, y));
        EXPECT_EQ(selected, none) << static_cast<int>(box.style) << ' ' << box.index;
    }
}
