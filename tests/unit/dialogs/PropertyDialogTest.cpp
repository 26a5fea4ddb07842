#include "dialogs/PropertyDialog.h"

#include "DialogsTest.h"
#include "chartcontrol/model/Chart.h"
#include "desktop/FontPicker.h"
#include "desktop/HeadlessDesktop.h"
#include "desktop/QtDesktop.h"
#include "desktop/QtTexts.h"
#include "dialogs/GraphSeriesProperties.h"
#include "dialogs/GraphTextProperties.h"
#include "dialogs/GraphTypes.h"
#include "support/Person.h"
#include "support/SampleCharts.h"
#include "support/TestViewer.h"

#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>

#include <set>

using namespace QmChart6;

namespace {

class PropertyDialogTest : public DialogsTest {
protected:
    PropertyDialogTest() {
        viewer.Model() = Samples::ChartOf(3, 2, [](int row, int column) { return row + column; });
        viewer.Model().Title.Text = QStringLiteral("Title");
    }

    void EditTitle(QWidget* owner = nullptr) {
        GraphTextProperties dialog(owner);
        Title& title = viewer.Model().Title;
        dialog.Execute([&] { return TextElement{&title.Text, &title.VtFont, &title.TextLayout}; }, true, true,
                       true);
        cancelled = dialog.Cancelled();
    }
    void EditSeries() {
        GraphSeriesProperties dialog(nullptr);
        QString name = QStringLiteral("Series");
        dialog.Execute([&] { return &viewer.Model().Plot.SeriesCollection(1); }, ChartType::Combination2D,
                       name);
    }
    void EditGraph() { GraphTypes(nullptr).Execute(viewer); }

    /// Runs a check on each dialog in each language, on each of its pages.
    void OnEveryPage(const std::function<void(QDialog&)>& check) {
        const DealingDesktop::Deal deal = [&](QDialog& form) {
            auto* tabs = form.findChild<QTabWidget*>();
            for (int tab = 0; tab < (tabs != nullptr ? tabs->count() : 1); ++tab) {
                if (tabs != nullptr) tabs->setCurrentIndex(tab);
                QApplication::processEvents();
                check(form);
            }
        };
        for (std::int16_t language = 0; language < LanguageCount; ++language) {
            SetLanguageCode(language);
            desktop.deals = {deal, deal, deal};
            EditTitle();
            EditSeries();
            EditGraph();
        }
        EXPECT_EQ(desktop.shown, 3 * LanguageCount);
    }

    /// The key that a caption underlines; nothing for none.
    static QChar KeyOf(const QString& caption) {
        for (int at = 0; at + 1 < caption.size(); ++at) {
            if (caption[at] != u'&') continue;
            if (caption[at + 1] != u'&') return caption[at + 1].toLower();
            ++at;
        }
        return {};
    }

    /// Every caption that can be seen and reached by a key.
    static QStringList CaptionsSeen(const QWidget& form) {
        QStringList captions;
        for (const auto* button : form.findChildren<QAbstractButton*>())
            if (button->isVisible() && !button->text().isEmpty()) captions.append(button->text());
        for (const auto* label : form.findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() != nullptr) captions.append(label->text());
        for (const auto* tabs : form.findChildren<QTabWidget*>())
            for (int tab = 0; tab < tabs->count(); ++tab) captions.append(tabs->tabText(tab));
        return captions;
    }

    TestViewer viewer;
    bool cancelled = false;
};

void PressKey(QWidget& control, Qt::Key key) {
    control.setFocus();
    QTest::keyClick(&control, key);
}

} // namespace

TEST_F(PropertyDialogTest, EnterActsAsOkWhereverTheFocusIs) {
    const DealingDesktop::Deal press = [](QDialog& form) {
        form.findChild<QLineEdit*>(QStringLiteral("TText"))->setText(QStringLiteral("New"));
    };
    for (const char* name :
         {"TText", "btnFont", "btnCancel", "btnApply", "cbHorizontal", "btnOrientation1"}) {
        viewer.Model().Title.Text = QStringLiteral("Old");
        desktop.deals = {[&](QDialog& form) {
            press(form);
            PressKey(The<QWidget>(form, name), Qt::Key_Return);
            EXPECT_FALSE(form.isVisible()) << name;
        }};
        EditTitle();
        EXPECT_EQ(viewer.Model().Title.Text, "New") << name;
        EXPECT_EQ(viewer.Model().Title.TextLayout.Orientation, Orientation::Horizontal) << name;
    }
    EXPECT_EQ(desktop.shown, 6);
    EXPECT_TRUE(desktop.fontStarts.isEmpty());
}

TEST_F(PropertyDialogTest, EscapeActsAsCancelWhereverTheFocusIs) {
    for (const char* name : {"TText", "btnFont", "btnOK", "cbHorizontal"}) {
        desktop.deals = {[&](QDialog& form) {
            form.findChild<QLineEdit*>(QStringLiteral("TText"))->setText(QStringLiteral("New"));
            PressKey(The<QWidget>(form, name), Qt::Key_Escape);
            EXPECT_FALSE(form.isVisible()) << name;
        }};
        EditTitle();
        EXPECT_TRUE(cancelled) << name;
        EXPECT_EQ(viewer.Model().Title.Text, "Title") << name;
    }
    EXPECT_EQ(desktop.shown, 4);
}

TEST_F(PropertyDialogTest, WhileAListHangsOpenEnterChoosesInItAndEscapeClosesIt) {
    desktop.deals = {[](QDialog& form) {
        QComboBox& list = List(form, "cbHorizontal");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            list.showPopup();
            QApplication::processEvents();
            ASSERT_NE(QApplication::activePopupWidget(), nullptr);
            QTest::keyClick(QApplication::activePopupWidget()->focusWidget() != nullptr
                                ? QApplication::activePopupWidget()->focusWidget()
                                : QApplication::activePopupWidget(),
                            key);
            EXPECT_TRUE(form.isVisible());
            list.hidePopup();
        }
    }};
    EditTitle();
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(PropertyDialogTest, ClosingTheWindowCancels) {
    desktop.deals = {[](QDialog& form) { form.close(); }};
    EditTitle();
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(PropertyDialogTest, WithNobodyAtTheDeskItIsCancelledAtOnce) {
    HeadlessDesktop unattended;
    const ScopedDesktop scope(unattended);
    EditTitle();
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(viewer.Model().Title.Text, "Title");
}

TEST_F(PropertyDialogTest, EndsAsCancelledWhenItsOwnerGoesAwayWhileItIsOpen) {
    QtDesktop peopled;
    const ScopedDesktop scope(peopled);
    auto owner = std::make_unique<QWidget>();
    owner->show();
    const Person<GraphTextProperties> host([&](GraphTextProperties&) { owner.reset(); });
    EditTitle(owner.get());
    EXPECT_TRUE(host.WasAsked());
    EXPECT_TRUE(cancelled);
}

TEST_F(PropertyDialogTest, EndsAsCancelledWhenItsOwnersWindowIsHiddenWhileItIsOpen) {
    QtDesktop peopled;
    const ScopedDesktop scope(peopled);
    QWidget window;
    auto* part = new QWidget(&window);
    window.show();
    const Person<GraphTextProperties> host([&](GraphTextProperties&) { window.hide(); });
    EditTitle(part);
    EXPECT_TRUE(host.WasAsked());
    EXPECT_TRUE(cancelled);
}

TEST_F(PropertyDialogTest, ItsPickerEndsWithItWhenTheOwnerGoesAway) {
    QtDesktop peopled;
    const ScopedDesktop scope(peopled);
    auto owner = std::make_unique<QWidget>();
    owner->show();
    const Person<GraphTextProperties> opens([&](GraphTextProperties& form) { Click(form, "btnFont"); });
    const Person<FontPicker> host([&](FontPicker&) { owner.reset(); });
    EditTitle(owner.get());
    EXPECT_TRUE(host.WasAsked());
    EXPECT_TRUE(cancelled);
}

TEST_F(PropertyDialogTest, WritesNothingWhenTheOwnerGoesAwayRightAfterOk) {
    auto owner = std::make_unique<QWidget>();
    owner->show();
    desktop.deals = {[&](QDialog& form) {
        The<QLineEdit>(form, "TText").setText(QStringLiteral("New"));
        Ok(form);
        owner.reset();
    }};
    EditTitle(owner.get());
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(viewer.Model().Title.Text, "Title");
}

TEST_F(PropertyDialogTest, StandsOverAnOwnerOfWhichItHidesLittle) {
    QWidget owner;
    owner.setGeometry(40, 100, 700, 600);
    owner.show();
    QApplication::processEvents();
    desktop.deals = {[&](QDialog& form) {
        const QPoint off = form.geometry().center() - owner.geometry().center();
        EXPECT_LT(std::abs(off.x()), 20);
        EXPECT_LT(std::abs(off.y()), 40);
    }};
    EditTitle(&owner);
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(PropertyDialogTest, WritesNothingMoreWhenTheOwnerGoesAwayOnceApplyHasWritten) {
    auto owner = std::make_unique<QWidget>();
    owner->show();
    GraphTextProperties dialog(owner.get());
    QObject::connect(&dialog, &PropertyDialog::Written, [&] { owner.reset(); });
    desktop.deals = {Apply, Ok};
    Title& title = viewer.Model().Title;
    dialog.Execute([&] { return TextElement{&title.Text, &title.VtFont, &title.TextLayout}; }, true, true,
                   true);
    EXPECT_EQ(desktop.shown, 1);
    EXPECT_TRUE(dialog.Cancelled());
}

TEST_F(PropertyDialogTest, EveryCaptionHasAKeyThatNoOtherSeenWithItHas) {
    OnEveryPage([](QDialog& form) {
        std::set<QChar> keys;
        for (const QString& caption : CaptionsSeen(form)) {
            const QChar key = KeyOf(caption);
            EXPECT_FALSE(key.isNull()) << qPrintable(caption);
            EXPECT_TRUE(keys.insert(key).second)
                << qPrintable(caption) << " in " << qPrintable(form.windowTitle());
        }
        EXPECT_GE(keys.size(), 7U);
    });
}

TEST_F(PropertyDialogTest, NothingIsNarrowerOrLowerThanItsText) {
    OnEveryPage([](QDialog& form) {
        int seen = 0;
        for (const auto* control : form.findChildren<QWidget*>()) {
            const bool hasText = qobject_cast<const QLabel*>(control) != nullptr ||
                                 qobject_cast<const QCheckBox*>(control) != nullptr ||
                                 qobject_cast<const QRadioButton*>(control) != nullptr ||
                                 qobject_cast<const QPushButton*>(control) != nullptr ||
                                 qobject_cast<const QTabBar*>(control) != nullptr ||
                                 qobject_cast<const QComboBox*>(control) != nullptr;
            if (!hasText || !control->isVisible()) continue;
            ++seen;
            EXPECT_LE(control->sizeHint().width(), control->width()) << qPrintable(control->objectName());
            EXPECT_LE(control->sizeHint().height(), control->height()) << qPrintable(control->objectName());
        }
        EXPECT_GE(seen, 5);
    });
}

TEST_F(PropertyDialogTest, EveryControlSaysWhatItIs) {
    OnEveryPage([](QDialog& form) {
        for (const auto* control : form.findChildren<QWidget*>()) {
            const bool takesFocus = control->isVisible() && control->focusPolicy() != Qt::NoFocus;
            if (!takesFocus || qobject_cast<const QTabBar*>(control) != nullptr) continue;
            EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
        }
    });
}

TEST_F(PropertyDialogTest, TabWalksTheControlsAsTheyAreSeen) {
    const auto walk = [](QDialog& form) {
        QStringList names;
        QWidget* first = form.focusWidget();
        const QWidget* now = first;
        do {
            names.append(now->objectName());
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            now = form.focusWidget();
        } while (now != first && names.size() < 40);
        return names;
    };
    QStringList ofText;
    QStringList ofSeries;
    desktop.deals = {[&](QDialog& form) { ofText = walk(form); },
                     [&](QDialog& form) { ofSeries = walk(form); }};
    EditTitle();
    EditSeries();
    EXPECT_EQ(ofText, QStringList({"TText", "btnFont", "btnOrientation0", "cbHorizontal", "cbVertical",
                                   "btnOK", "btnCancel", "btnApply"}));
    EXPECT_EQ(ofSeries, QStringList({"txtName", "cbType", "btnColor", "btnOK", "btnCancel", "btnApply",
                                     "qt_tabwidget_tabbar"}));
}

TEST(FontPicker, GivesWhatItWasGivenWhereNothingIsTouched) {
    const FontChoice start{.family = QStringLiteral("No Such Font"),
                           .size = 8.25,
                           .bold = true,
                           .italic = true,
                           .strikethrough = true,
                           .underline = true,
                           .colour = QColor(1, 2, 3)};
    ScriptedDesktop desktop;
    const FontPicker picker(desktop, start, {}, nullptr);
    EXPECT_EQ(picker.Choice(), start);
}

TEST(FontPicker, ShowsWhatIsDrawnForAFontThatIsNotInstalledWithItsStyles) {
    const QString missing = QStringLiteral("Arial No Such");
    ASSERT_FALSE(QFontDatabase::families().contains(missing));
    const QString drawn = QFontInfo(QFont(missing)).family();
    const FontChoice start{.family = missing, .size = 12, .bold = true};
    FontPickerTexts texts;
    texts.notInstalled = QStringLiteral("%1 is drawn as %2");
    ScriptedDesktop desktop;
    FontPicker picker(desktop, start, texts, nullptr);
    auto* fonts = picker.findChild<QFontDialog*>();
    EXPECT_EQ(fonts->currentFont().family(), drawn);
    EXPECT_TRUE(fonts->currentFont().bold());
    const auto* note = picker.findChild<QLabel*>(QStringLiteral("lblDrawn"));
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->text(), QStringLiteral("%1 is drawn as %2").arg(missing, drawn));
    EXPECT_FALSE(note->isHidden());

    // Another style of the same family, as a person chooses it in the list.
    const auto choose = [&](bool bold, bool italic) {
        bool found = false;
        QListView& styles = *fonts->findChildren<QListView*>().at(1);
        for (int row = 0; row < styles.model()->rowCount(); ++row) {
            const QString style = styles.model()->index(row, 0).data().toString();
            const QFont styled = QFontDatabase::font(drawn, style, 12);
            if (styled.bold() != bold || styled.italic() != italic) continue;
            styles.setCurrentIndex(styles.model()->index(row, 0));
            found = true;
            break;
        }
        // Some families have no slanted styles.
        if (!found && italic) return;
        FontChoice expected = start;
        expected.bold = bold;
        expected.italic = italic;
        EXPECT_EQ(fonts->currentFont().bold(), bold);
        EXPECT_EQ(fonts->currentFont().italic(), italic);
        EXPECT_EQ(picker.Choice(), expected);
    };
    choose(false, false);
    choose(true, true);
    choose(false, true);
    choose(true, false);
}

TEST(FontPicker, ShowsTheStyleOfTheFontInEveryLanguage) {
    const QString family = QFontInfo(QFont(QStringLiteral("Liberation Sans"))).family();
    for (const char* locale : {"", "pt_BR", "es", "it"}) {
        SetQtTextsLanguage(QLatin1String(locale));
        const QtTexts texts;
        for (const bool bold : {false, true}) {
            for (const bool italic : {false, true}) {
                const FontChoice start{.family = family, .size = 12, .bold = bold, .italic = italic};
                ScriptedDesktop desktop;
                const FontPicker picker(desktop, start, {}, nullptr);
                const QFont shown = picker.findChild<QFontDialog*>()->currentFont();
                EXPECT_EQ(shown.bold(), bold) << locale;
                EXPECT_EQ(shown.italic(), italic) << locale;
            }
        }
    }
    SetQtTextsLanguage({});
}

TEST(FontPicker, GivesTheColourAndTheEffectsThatWereChosen) {
    ScriptedDesktop desktop;
    desktop.colours = {QColor(Qt::red)};
    const FontChoice start{.family = QStringLiteral("Arial"), .size = 9, .colour = QColor(Qt::blue)};
    FontPicker picker(desktop, start, {}, nullptr);
    picker.findChild<QPushButton*>(QStringLiteral("btnColour"))->click();
    auto* fonts = picker.findChild<QFontDialog*>();
    QFont font = fonts->currentFont();
    font.setUnderline(true);
    fonts->setCurrentFont(font);
    FontChoice expected = start;
    expected.underline = true;
    expected.colour = QColor(Qt::red);
    EXPECT_EQ(picker.Choice(), expected);
    ASSERT_EQ(desktop.colourStarts.size(), 1);
    EXPECT_EQ(desktop.colourStarts[0], QColor(Qt::blue));
}

TEST(FontPicker, EnterActsAsOkAndEscapeAsCancelWhereverTheFocusIs) {
    for (const auto& [key, result] :
         {std::pair(Qt::Key_Return, QDialog::Accepted), std::pair(Qt::Key_Escape, QDialog::Rejected)}) {
        ScriptedDesktop desktop;
        FontPicker picker(desktop, FontChoice(),
                          {.title = {}, .colour = "Color", .ok = "OK", .cancel = "Cancel"}, nullptr);
        int tried = 0;
        for (QWidget* control : picker.findChildren<QWidget*>()) {
            const bool inDialog = control->window() == &picker && control->focusPolicy() != Qt::NoFocus;
            if (!inDialog || qobject_cast<QPushButton*>(control) != nullptr) continue;
            picker.show();
            picker.activateWindow();
            if (!control->isVisible()) continue;
            ++tried;
            picker.setResult(99);
            PressKey(*control, key);
            EXPECT_EQ(picker.result(), result) << control->metaObject()->className();
            EXPECT_FALSE(picker.isVisible()) << control->metaObject()->className();
            picker.findChild<QFontDialog*>()->show();
        }
        EXPECT_GE(tried, 8);
    }
}

TEST(QtDesktop, APickerThatIsEscapedGivesNothing) {
    QtDesktop desktop;
    const Person<FontPicker> fonts([](FontPicker& picker) { QTest::keyClick(&picker, Qt::Key_Escape); });
    EXPECT_FALSE(desktop.PickFont(nullptr, FontChoice(), {}).has_value());
    EXPECT_TRUE(fonts.WasAsked());
    const Person<QDialog> colours([](QDialog& picker) { QTest::keyClick(&picker, Qt::Key_Escape); });
    EXPECT_FALSE(desktop.PickColour(nullptr, Qt::red, {}).has_value());
    EXPECT_TRUE(colours.WasAsked());
}
