#pragma once

#include <QObject>

#include <random>

class QWidget;

/// Somebody at the desk who clicks, types and turns the wheel without a plan, while a host goes on with its
/// work: it makes the chart anew, with another table, language or look, or closes it. Events go on while a
/// dialog waits; one that hangs about too long is let go of.
class Monkey {
public:
    Monkey(unsigned seed, int events);

    /// Runs all events; gives how many there were.
    int Run();

    [[nodiscard]] std::mt19937& Random() { return random_; }

private:
    void ActSoon();
    void Act();
    void End();
    void ActAsHost();
    void ActAsPerson(QWidget& window);
    void Click(QWidget& widget);
    void Press(QWidget& widget);
    void MakeGraph();
    [[nodiscard]] QWidget* Window() const;
    [[nodiscard]] QWidget& WidgetOf(QWidget& window);

    std::mt19937 random_;
    int left_;
    int done_ = 0;
    int inSameDialog_ = 0;
    QWidget* lastModal_ = nullptr;
    bool over_ = false;
    QObject context_;
};
