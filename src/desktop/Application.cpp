#include "desktop/Application.h"

#include "qmchart6/RuntimeError.h"

#include <QApplication>
#include <QByteArray>
#include <QThread>

#include <mutex>
#include <thread>

namespace QmChart6 {

namespace {

constexpr const char* PlatformVariable = "QT_QPA_PLATFORM";

/// The platforms to try, in their order. Qt takes the first that starts, and would end the process were there
/// none; the last one always starts.
QByteArray PlatformsToTry() {
    QByteArray platforms = qgetenv(PlatformVariable);
    if (platforms.isEmpty()) {
        const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
        const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
        if (wayland) platforms += "wayland;";
        if (x11) platforms += "xcb;";
        return platforms + "offscreen";
    }
    return platforms.contains("offscreen") || platforms.contains("minimal") ? platforms
                                                                            : platforms + ";offscreen";
}

void MakeApplication() {
    // Both must live as long as the application does.
    static char name[] = "qmchart6";
    static char* arguments[] = {name, nullptr};
    static int argumentCount = 1;

    // The variable is Qt's only way in that its own command line does not override; the host's own children
    // get what the host had.
    const bool wasSet = qEnvironmentVariableIsSet(PlatformVariable);
    const QByteArray before = qgetenv(PlatformVariable);
    qputenv(PlatformVariable, PlatformsToTry());
    // Never destroyed: a host may end its interpreter or its thread long before its last window goes.
    auto* application = new QApplication(argumentCount, arguments); // NOLINT(cppcoreguidelines-owning-memory)
    if (wasSet)
        qputenv(PlatformVariable, before);
    else
        qunsetenv(PlatformVariable);
    // A host that runs this application's loop decides itself when it ends.
    application->setQuitOnLastWindowClosed(false);
}

/// What is known of the application's end, and who else wants to.
struct ApplicationEnd {
    bool watched = false;
    bool seen = false;
    void (*tell)() = nullptr;
};

ApplicationEnd& TheEnd() {
    static ApplicationEnd end;
    return end;
}

void ApplicationEnds() {
    TheEnd().watched = false;
    TheEnd().seen = true;
    if (TheEnd().tell != nullptr) TheEnd().tell();
}

void WatchForTheEnd() {
    if (TheEnd().watched) return;
    TheEnd().watched = true;
    qAddPostRoutine(ApplicationEnds); // which Qt forgets once it was called
}

} // namespace

void WhenApplicationEnds(void (*tell)()) {
    TheEnd().tell = tell;
}

void EnsureAnyApplication() {
    if (QCoreApplication::instance() == nullptr) {
        // A second one beside what is left of the host's would find much of Qt in pieces.
        if (TheEnd().seen)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                               QStringLiteral("the host's application object has ended"));
        MakeApplication();
    }
    WatchForTheEnd();
}

void EnsureApplication() {
    EnsureAnyApplication();
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the host's application object must be a QApplication"));
}

bool RunsOnADisplay() {
    EnsureApplication();
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

void RequireFirstThread() {
    static std::once_flag asked;
    static std::thread::id first;
    std::call_once(asked, [] { first = std::this_thread::get_id(); });
    const QCoreApplication* application = QCoreApplication::instance();
    if (std::this_thread::get_id() != first ||
        (application != nullptr && application->thread() != QThread::currentThread()))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("all calls are made on one thread, the first that made any"));
}

} // namespace QmChart6
