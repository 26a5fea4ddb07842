#include "desktop/BusyCursor.h"

#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "support/TestViewer.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

bool IsBusy() {
    return QGuiApplication::overrideCursor() != nullptr &&
           QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

/// Writes down whether the program shows that it works, when it is asked for its look and given one.
class WatchingViewer : public TestViewer {
public:
    mutable int busy = 0;
    mutable int idle = 0;

    [[nodiscard]] LookState Look() const override {
        ++(IsBusy() ? busy : idle);
        return TestViewer::Look();
    }
};

/// Writes down the same when a message is shown.
class WatchingDesktop : public ScriptedDesktop {
public:
    bool busy = false;

    Answer ShowMessage(QWidget* owner, const QString& text, const QString& title,
                       MessageButtons buttons) override {
        busy = IsBusy();
        return ScriptedDesktop::ShowMessage(owner, text, title, buttons);
    }
};

class BusyCursorTest : public testing::Test {
protected:
    WatchingDesktop desktop;
    ScopedDesktop scope{desktop};
    WatchingViewer viewer;
};

} // namespace

TEST_F(BusyCursorTest, SavingAndLoadingALookShowThatTheProgramWorks) {
    const TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    viewer.config = QStringLiteral("Look");
    SaveConfiguration(viewer);
    EXPECT_GT(viewer.busy, 0);
    viewer.busy = 0;
    LoadConfiguration(viewer, QStringLiteral("Look"), true);
    EXPECT_GT(viewer.busy, 0);
    EXPECT_EQ(viewer.idle, 0);
    EXPECT_FALSE(IsBusy());
}

TEST_F(BusyCursorTest, NobodyIsAskedWhileTheProgramSaysThatItWorks) {
    SetConfigurationFolder(QStringLiteral("/nowhere/"));
    SaveConfiguration(viewer);
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_FALSE(desktop.busy);
    EXPECT_FALSE(IsBusy());
}
