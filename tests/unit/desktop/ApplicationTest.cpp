#include "desktop/Application.h"
#include "desktop/HeadlessDesktop.h"
#include "support/Person.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPrinter>
#include <QPushButton>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

using namespace QmChart6;

namespace {

/// Ends the process with 1 where windows are seen, 2 where the platform's name is another, else 0.
[[noreturn]] void ExitByPlatform(const char* expected) {
    const bool seen = RunsOnADisplay();
    const bool same = QGuiApplication::platformName() == QLatin1String(expected);
    std::_Exit(seen ? 1 : (same ? 0 : 2));
}

struct HostArguments {
    std::string name = "host";
    std::array<char*, 2> texts{name.data(), nullptr};
    int count = 1;
};

class InAProcessOfItsOwn : public testing::Test {
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

} // namespace

using ApplicationDeathTest = InAProcessOfItsOwn;

TEST_F(ApplicationDeathTest, RunsUnseenWithoutADisplay) {
    EXPECT_EXIT(
        {
            unsetenv("QT_QPA_PLATFORM");
            unsetenv("DISPLAY");
            unsetenv("WAYLAND_DISPLAY");
            ExitByPlatform("offscreen");
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, RunsUnseenWhereTheDisplayCannotBeReached) {
    EXPECT_EXIT(
        {
            unsetenv("QT_QPA_PLATFORM");
            unsetenv("WAYLAND_DISPLAY");
            setenv("DISPLAY", ":4711", 1);
            ExitByPlatform("offscreen");
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, RunsUnseenWhereThePlatformThatWasAskedForCannotStart) {
    EXPECT_EXIT(
        {
            setenv("QT_QPA_PLATFORM", "xcb", 1);
            setenv("DISPLAY", ":4711", 1);
            ExitByPlatform("offscreen");
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, KeepsThePlatformThatWasAskedFor) {
    EXPECT_EXIT(
        {
            setenv("QT_QPA_PLATFORM", "minimal", 1);
            setenv("DISPLAY", ":4711", 1);
            ExitByPlatform("minimal");
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, LeavesTheEnvironmentAsItWas) {
    EXPECT_EXIT(
        {
            unsetenv("QT_QPA_PLATFORM");
            unsetenv("DISPLAY");
            unsetenv("WAYLAND_DISPLAY");
            EnsureApplication();
            std::_Exit(std::getenv("QT_QPA_PLATFORM") == nullptr ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, UsesTheHostsApplication) {
    EXPECT_EXIT(
        {
            HostArguments from;
            const QApplication host(from.count, from.texts.data());
            EnsureApplication();
            std::_Exit(QCoreApplication::instance() == &host ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, RefusesAHostsApplicationWithoutWidgets) {
    EXPECT_EXIT(
        {
            HostArguments from;
            const QCoreApplication host(from.count, from.texts.data());
            try {
                EnsureApplication();
            } catch (const RuntimeError& error) {
                std::_Exit(error.Number());
            }
            std::_Exit(0);
        },
        testing::ExitedWithCode(5), "");
}

TEST_F(ApplicationDeathTest, RefusesAThreadThatTheHostsApplicationDoesNotLiveOn) {
    EXPECT_EXIT(
        {
            HostArguments from;
            const QApplication host(from.count, from.texts.data());
            std::thread([] {
                try {
                    RequireFirstThread();
                } catch (const RuntimeError& error) {
                    std::_Exit(error.Number());
                }
            }).join();
            std::_Exit(0);
        },
        testing::ExitedWithCode(5), "");
}

TEST(RequireFirstThread, RefusesAnotherThreadThanTheFirst) {
    EXPECT_NO_THROW(RequireFirstThread());
    std::thread([] { EXPECT_RAISES(5, RequireFirstThread()); }).join();
    EXPECT_NO_THROW(RequireFirstThread());
}

TEST(HeadlessDesktop, AnswersByItself) {
    HeadlessDesktop desktop;
    testing::internal::CaptureStderr();
    EXPECT_EQ(desktop.ShowMessage(nullptr, QStringLiteral("two\nlines"), QStringLiteral("Title"),
                                  MessageButtons::Ok),
              Answer::Ok);
    EXPECT_EQ(desktop.ShowMessage(nullptr, QStringLiteral("sure?"), QString(), MessageButtons::YesNo),
              Answer::No);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Title: two lines\nsure?\n");
    EXPECT_FALSE(desktop.PickSaveFile(nullptr, {}).has_value());
    EnsureApplication();
    QDialog dialog;
    dialog.setResult(QDialog::Accepted);
    desktop.RunModal(dialog);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(desktop.PickColour(nullptr, Qt::red, {}).has_value());
    EXPECT_FALSE(desktop.PickFont(nullptr, {}, {}).has_value());
}

TEST(CurrentDesktop, IsWhatAScopePutsInPlace) {
    EnsureApplication();
    Desktop& own = CurrentDesktop();
    {
        ScriptedDesktop scripted;
        const ScopedDesktop scope(scripted);
        EXPECT_EQ(&CurrentDesktop(), &scripted);
    }
    EXPECT_EQ(&CurrentDesktop(), &own);
}

TEST(CurrentDesktop, KeepsTheClipboardsContentUntilItIsCleared) {
    EnsureApplication();
    auto content = std::make_unique<QMimeData>();
    content->setText(QStringLiteral("kept"));
    CurrentDesktop().SetClipboard(std::move(content));
    EXPECT_EQ(CurrentDesktop().Clipboard()->text(), "kept");
    CurrentDesktop().ClearClipboard();
    const QMimeData* left = CurrentDesktop().Clipboard();
    EXPECT_TRUE(left == nullptr || left->formats().isEmpty());
}

TEST(QtDesktop, AnOwnerMayGoWhileItsMessageWaits) {
    EnsureApplication();
    QtDesktop desktop;
    auto owner = std::make_unique<QWidget>();
    owner->show();
    Person<QMessageBox> person([&](QMessageBox& box) {
        box.done(QMessageBox::Yes);
        owner.reset();
    });
    EXPECT_EQ(desktop.ShowMessage(owner.get(), QStringLiteral("sure?"), QString(), MessageButtons::YesNo),
              Answer::No);
    EXPECT_TRUE(person.WasAsked());
}

TEST(QtDesktop, EnterMeansNoWhereNoIsTheDefault) {
    EnsureApplication();
    QtDesktop desktop;
    for (const auto& [buttons, answer] : {std::pair(MessageButtons::YesNo, Answer::Yes),
                                          std::pair(MessageButtons::YesNoByDefault, Answer::No)}) {
        const Person<QMessageBox> person([](QMessageBox& box) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(&box, &enter);
        });
        EXPECT_EQ(desktop.ShowMessage(nullptr, QStringLiteral("sure?"), QString(), buttons), answer);
    }
}

TEST(QtDesktop, GivesTheAnswerThatWasClicked) {
    EnsureApplication();
    QtDesktop desktop;
    for (const auto& [button, answer] :
         {std::pair(QMessageBox::Yes, Answer::Yes), std::pair(QMessageBox::No, Answer::No)}) {
        const Person<QMessageBox> person([button](QMessageBox& box) { box.button(button)->click(); });
        EXPECT_EQ(desktop.ShowMessage(nullptr, QStringLiteral("sure?"), QString(), MessageButtons::YesNo),
                  answer);
    }
    const Person<QMessageBox> escapes([](QMessageBox& box) { box.reject(); });
    EXPECT_EQ(desktop.ShowMessage(nullptr, QStringLiteral("told"), QString(), MessageButtons::Ok),
              Answer::Ok);
}

TEST(QtDesktop, HasNoPrinterOfANameThatNoneBears) {
    EnsureApplication();
    EXPECT_EQ(QtDesktop().OpenPrinter(QStringLiteral("no such printer")), nullptr);
}

TEST(HeadlessDesktop, ThePrintDialogIsAnsweredWithWhatItBeginsWith) {
    EnsureApplication();
    HeadlessDesktop desktop;
    QPrinter settings(QPrinter::HighResolution);
    const QPageLayout before = settings.pageLayout();
    EXPECT_EQ(desktop.PickPrinter(nullptr, settings), std::optional(settings.printerName()));
    EXPECT_EQ(settings.pageLayout(), before);
}
