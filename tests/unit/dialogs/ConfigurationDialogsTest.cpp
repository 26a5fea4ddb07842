#include "dialogs/GraphConfigSave.h"
#include "dialogs/GraphConfiguration.h"

#include "DialogsTest.h"
#include "chart/DefaultLook.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/TestStore.h"
#include "support/TestViewer.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTextDocument>

using namespace QmChart6;

namespace {

class ConfigurationDialogsTest : public DialogsTest {
protected:
    ConfigurationDialogsTest() { SetConfigurationFolder(store.Folder()); }

    /// Keeps a look of that name with a chart type and a title of its own.
    void Keep(const QString& name, ChartType type, const QString& graphId = QStringLiteral("OTHER")) {
        TestViewer other;
        other.graphId = graphId;
        other.config = name;
        other.Model().SetGridSize(2, 2);
        other.Model().SetChartType(type);
        other.Model().Title.Text = name;
        SaveConfiguration(other);
    }
    static QListWidget& Names(QWidget& form) { return The<QListWidget>(form, "lstConfig"); }
    static QStringList Listed(QWidget& form) {
        QStringList names;
        for (int row = 0; row < Names(form).count(); ++row) names.append(Names(form).item(row)->text());
        return names;
    }
    static void Choose(QWidget& form, int row) { Names(form).setCurrentRow(row); }
    void Load() { GraphConfiguration(nullptr).Execute(viewer); }
    void SaveAs() { GraphConfigSave(nullptr).Execute(viewer); }
    [[nodiscard]] ChartType Type() { return viewer.Model().chartType(); }
    [[nodiscard]] QString BoundName() const {
        const auto rows =
            store.Sql(QStringLiteral("SELECT \"ConfigId\" FROM <Charts> WHERE \"ChartId\" = 'SALES'"));
        return rows.isEmpty() ? QString() : rows.front().front().toString();
    }

    TestStore store{Engine::Sqlite, ConfigurationSchema()};
    TestViewer viewer;
};

} // namespace

TEST_F(ConfigurationDialogsTest, TheNamesStandInKeyOrderWithTheViewersOwnSelected) {
    for (const char* name : {"beta", "Alpha", "gamma"}) Keep(QLatin1String(name), ChartType::Bar2D);
    viewer.config = QStringLiteral("BETA");
    desktop.deals.push_back([](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), "Load Configuration");
        EXPECT_EQ(Listed(form), QStringList({"Alpha", "beta", "gamma"}));
        EXPECT_EQ(Names(form).currentRow(), 1);
        EXPECT_TRUE(Names(form).hasFocus());
    });
    Load();
    EXPECT_EQ(desktop.shown, 1);
}

TEST_F(ConfigurationDialogsTest, OkLoadsTheSelectedLookWithoutTitlesAndLeavesTheBindingAsItWas) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    viewer.config = QStringLiteral("Mine");
    viewer.Model().Title.Text = QStringLiteral("Caller's");
    desktop.deals.push_back([](QDialog& form) {
        Choose(form, 0);
        Ok(form);
    });
    Load();
    EXPECT_EQ(Type(), ChartType::Area2D);
    EXPECT_EQ(viewer.Model().Title.Text, "Caller's");
    EXPECT_EQ(viewer.status, "Configuration Loaded");
    EXPECT_EQ(viewer.config, "Mine");
    EXPECT_EQ(BoundName(), "");
}

TEST_F(ConfigurationDialogsTest, TitlesAreLoadedAndTheLookIsMadeTheDefaultWhereTheBoxesAreTicked) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    desktop.deals.push_back([](QDialog& form) {
        Choose(form, 0);
        Check(form, "chkTitles").setChecked(true);
        Check(form, "chkDefault").setChecked(true);
        Ok(form);
    });
    Load();
    EXPECT_EQ(viewer.Model().Title.Text, "Area");
    EXPECT_EQ(viewer.config, "Area");
    EXPECT_EQ(BoundName(), "Area");
}

TEST_F(ConfigurationDialogsTest, AnEmptyListLoadsNothingAndSetsNoStatus) {
    const Chart before = viewer.Model();
    desktop.deals = {Apply, Ok};
    Load();
    EXPECT_EQ(desktop.shown, 2);
    EXPECT_EQ(viewer.Model(), before);
    EXPECT_EQ(viewer.status, "");
}

TEST_F(ConfigurationDialogsTest, CancelAfterApplyKeepsWhatApplyLoaded) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    Keep(QStringLiteral("Line"), ChartType::Line2D);
    desktop.deals.push_back([](QDialog& form) {
        Choose(form, 0);
        Apply(form);
    });
    desktop.deals.push_back([](QDialog& form) {
        EXPECT_EQ(Names(form).currentRow(), 0);
        Choose(form, 1);
        Cancel(form);
    });
    Load();
    EXPECT_EQ(desktop.shown, 2);
    EXPECT_EQ(Type(), ChartType::Area2D);
}

TEST_F(ConfigurationDialogsTest, EnterActsAsOkAndEscapeAsCancel) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    const auto press = [](Qt::Key key) {
        return [key](QDialog& form) {
            Choose(form, 0);
            QTest::keyClick(&Names(form), key);
        };
    };
    desktop.deals.push_back(press(Qt::Key_Escape));
    Load();
    EXPECT_EQ(Type(), ChartType::Bar2D);
    desktop.deals.push_back(press(Qt::Key_Return));
    Load();
    EXPECT_EQ(Type(), ChartType::Area2D);
}

TEST_F(ConfigurationDialogsTest, ADoubleClickOnANameActsAsOk) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    desktop.deals.push_back([](QDialog& form) {
        QListWidget& names = Names(form);
        const QPoint place = names.visualItemRect(names.item(0)).center();
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(names.viewport(), Qt::LeftButton, {}, place);
        EXPECT_FALSE(form.isVisible());
    });
    Load();
    EXPECT_EQ(Type(), ChartType::Area2D);
}

TEST_F(ConfigurationDialogsTest, DeletingTheSelectedLookAsksAndRemovesItFromTheListAtOnce) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    Keep(QStringLiteral("Line"), ChartType::Line2D);
    desktop.answers = {Answer::No, Answer::Yes};
    desktop.deals.push_back([this](QDialog& form) {
        EXPECT_FALSE(The<QAbstractButton>(form, "btnDelete").isEnabled());
        Choose(form, 0);
        Click(form, "btnDelete");
        EXPECT_EQ(Listed(form), QStringList({"Area", "Line"}));
        Click(form, "btnDelete");
        EXPECT_EQ(Listed(form), QStringList("Line"));
        EXPECT_EQ(desktop.messages.front().text, "Delete Configuration Area?");
        EXPECT_EQ(desktop.messages.front().buttons, MessageButtons::YesNoByDefault);
    });
    Load();
    EXPECT_FALSE(ConfigurationExists(QStringLiteral("Area")));
}

TEST_F(ConfigurationDialogsTest, TheDeleteKeyInTheListDeletesToo) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    desktop.answers = {Answer::Yes};
    desktop.deals.push_back([](QDialog& form) {
        Choose(form, 0);
        QTest::keyClick(&Names(form), Qt::Key_Delete);
        EXPECT_TRUE(Listed(form).isEmpty());
    });
    Load();
    EXPECT_EQ(desktop.messages.size(), 1);
}

TEST_F(ConfigurationDialogsTest, ANameWithALineEndStandsOnOneLineAndIsLoaded) {
    Keep(QStringLiteral("two\nlines"), ChartType::Area2D);
    desktop.deals.push_back([](QDialog& form) {
        EXPECT_FALSE(Names(form).item(0)->text().contains(u'\n'));
        Choose(form, 0);
        Ok(form);
    });
    Load();
    EXPECT_EQ(Type(), ChartType::Area2D);
}

TEST_F(ConfigurationDialogsTest, WithoutABindingKeysAndLettersSelectAndNoUnselectedNameHasTheFocusFrame) {
    for (const char* name : {"Area", "Line", "Lines"}) Keep(QLatin1String(name), ChartType::Area2D);
    const auto expectSelected = [](QWidget& form, int row) {
        QListWidget& names = Names(form);
        EXPECT_EQ(names.currentRow(), row);
        EXPECT_EQ(names.selectedItems().size(), row < 0 ? 0 : 1);
        EXPECT_EQ(names.currentItem(), names.selectedItems().value(0));
    };
    const std::vector<std::pair<Qt::Key, int>> first{{Qt::Key_Down, 0}, {Qt::Key_Up, 0},    {Qt::Key_Home, 0},
                                                     {Qt::Key_End, 2},  {Qt::Key_Space, 0}, {Qt::Key_A, 0},
                                                     {Qt::Key_L, 1}};
    for (const auto& [key, row] : first) {
        desktop.deals.push_back([&, key = key, row = row](QDialog& form) {
            EXPECT_TRUE(Names(form).hasFocus());
            expectSelected(form, -1);
            QTest::keyClick(&Names(form), key);
            expectSelected(form, row);
            QTest::keyClick(&Names(form), Qt::Key_End, Qt::ControlModifier);
            expectSelected(form, 2);
            Cancel(form);
        });
        Load();
    }
}

TEST_F(ConfigurationDialogsTest, WithNothingChosenTheDialogSaysThatOkLoadsTheDefaultLook) {
    Keep(QStringLiteral("Area"), ChartType::Area2D);
    desktop.deals.push_back([](QDialog& form) {
        const QLabel& hint = The<QLabel>(form, "lblHint");
        EXPECT_TRUE(hint.isVisible());
        EXPECT_EQ(hint.text(), "Nothing selected: OK loads the default look");
        const QRect list = Names(form).geometry();
        Choose(form, 0);
        QApplication::processEvents();
        EXPECT_FALSE(hint.isVisible());
        EXPECT_EQ(Names(form).geometry(), list);
    });
    Load();
}

TEST_F(ConfigurationDialogsTest, ANameThatLooksLikeMarkupIsReadAsItIs) {
    Keep(QStringLiteral("<b>bold</b>"), ChartType::Area2D);
    desktop.deals.push_back([](QDialog& form) {
        QTextDocument tip;
        tip.setHtml(Names(form).item(0)->toolTip());
        EXPECT_EQ(tip.toPlainText(), "<b>bold</b>");
    });
    Load();
}

TEST_F(ConfigurationDialogsTest, ANewNameIsSavedWithoutAQuestion) {
    desktop.deals.push_back([](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), "Save Configuration As...");
        The<QLineEdit>(form, "txtConfig").setText(QStringLiteral("New"));
        Ok(form);
    });
    SaveAs();
    EXPECT_TRUE(desktop.messages.isEmpty());
    EXPECT_EQ(viewer.config, "New");
    EXPECT_EQ(viewer.status, "Configuration Saved");
    EXPECT_EQ(BoundName(), "New");
}

TEST_F(ConfigurationDialogsTest, TheViewersNameIsInTheBoxSelectedAndFocused) {
    viewer.config = QStringLiteral("Mine");
    desktop.deals.push_back([](QDialog& form) {
        auto& name = The<QLineEdit>(form, "txtConfig");
        EXPECT_EQ(name.selectedText(), "Mine");
        EXPECT_TRUE(name.hasFocus());
    });
    SaveAs();
    EXPECT_FALSE(ConfigurationExists(QStringLiteral("Mine")));
}

TEST_F(ConfigurationDialogsTest, NoToOverwritingKeepsTheDialogAndCancelThenSavesNothing) {
    Keep(QStringLiteral("Taken"), ChartType::Area2D);
    viewer.config = QStringLiteral("Mine");
    desktop.answers = {Answer::No};
    desktop.deals.push_back([](QDialog& form) {
        The<QLineEdit>(form, "txtConfig").setText(QStringLiteral("Taken"));
        Ok(form);
    });
    desktop.deals.push_back([](QDialog& form) {
        EXPECT_EQ(The<QLineEdit>(form, "txtConfig").text(), "Taken");
        Cancel(form);
    });
    SaveAs();
    EXPECT_EQ(desktop.shown, 2);
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_EQ(desktop.messages.front().text, "Configuration Taken Already Exists. Overwrite?");
    EXPECT_EQ(viewer.config, "Mine");
    EXPECT_EQ(BoundName(), "");
}

TEST_F(ConfigurationDialogsTest, SavingUnderThePresentNameAsksAndYesOverwrites) {
    Keep(QStringLiteral("Mine"), ChartType::Area2D, QStringLiteral("SALES"));
    viewer.config = QStringLiteral("Mine");
    desktop.answers = {Answer::Yes};
    desktop.deals = {Ok};
    SaveAs();
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_EQ(viewer.status, "Configuration Saved");
}

TEST_F(ConfigurationDialogsTest, AQuestionWithoutAPlaceForTheNameHasItAtItsEnd) {
    EXPECT_EQ(WithName(QStringLiteral("Overwrite _ now _?"), QStringLiteral("a_b")), "Overwrite a_b now _?");
    EXPECT_EQ(WithName(QStringLiteral("Overwrite? "), QStringLiteral("a")), "Overwrite? a");
}

TEST_F(ConfigurationDialogsTest, AllTextsAreThereInFourLanguages) {
    QStringList titles;
    for (std::int16_t language = 0; language < LanguageCount; ++language) {
        SetLanguageCode(language);
        desktop.deals.push_back([&](QDialog& form) {
            titles.append(form.windowTitle());
            EXPECT_EQ(The<QLabel>(form, "lblAvailable").text().remove(u'&'),
                      LocalText(TextKey::AvailableConfigurations) + u':');
            EXPECT_EQ(Check(form, "chkTitles").text().remove(u'&'), LocalText(TextKey::LoadTitles));
            EXPECT_EQ(Check(form, "chkDefault").text().remove(u'&'),
                      LocalText(TextKey::MakeDefaultConfiguration));
        });
        Load();
    }
    EXPECT_EQ(titles.removeDuplicates(), 0);
}
