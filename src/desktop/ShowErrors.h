#pragma once

#include "desktop/CurrentDesktop.h"
#include "qmchart6/RuntimeError.h"

#include <exception>

namespace QmChart6 {

/// Does what a click asks for. Nobody above an event can take an error, so it is shown, and the window lives
/// on.
template<class Action>
void ShowErrors(QWidget* owner, Action&& action) {
    QString message;
    try {
        action();
        return;
    } catch (const RuntimeError& error) {
        message = error.Message();
    } catch (const std::exception& error) {
        message = QString::fromLocal8Bit(error.what());
    }
    CurrentDesktop().ShowMessage(owner, message, QString(), MessageButtons::Ok);
}

} // namespace QmChart6
