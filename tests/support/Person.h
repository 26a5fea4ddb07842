#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/// Someone at the desk: waits for a modal window of one kind and deals with it once. Set up before the call
/// that will wait for them.
template<class Window>
class Person {
public:
    explicit Person(std::function<void(Window&)> deal) : deal_(std::move(deal)) {
        QObject::connect(&look_, &QTimer::timeout, [this] { Look(); });
        look_.start(5);
    }

    [[nodiscard]] bool WasAsked() const { return asked_; }

private:
    void Look() {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        if (window == nullptr || !window->isVisible()) return;
        look_.stop();
        asked_ = true;
        deal_(*window);
    }

    std::function<void(Window&)> deal_;
    QTimer look_;
    bool asked_ = false;
};
