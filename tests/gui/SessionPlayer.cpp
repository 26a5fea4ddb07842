#include "SessionPlayer.h"

#include "dialogs/PatternPicker.h"
#include "support/ChartDesk.h"
#include "support/Person.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>

#include <exception>
#include <functional>
#include <list>
#include <optional>

using namespace QmChart6;

namespace {

/// A line's words; quotes hold a word with blanks together.
QStringList WordsOf(const QString& line) {
    static const QRegularExpression word(QStringLiteral("\"([^\"]*)\"|(\\S+)"));
    QStringList words;
    for (auto match = word.globalMatch(line); match.hasNext();) {
        const auto found = match.next();
        words.append(found.captured(1) + found.captured(2));
    }
    return words;
}

std::runtime_error NotUnderstood(const QStringList& words) {
    return std::runtime_error("not understood: " + words.join(u' ').toStdString());
}

std::optional<PartCode> PartNamed(const QString& name) {
    static const QMap<QString, PartCode> codes{
        {"title", PartCode::Title},         {"footnote", PartCode::Footnote},
        {"legend", PartCode::Legend},       {"plot", PartCode::Plot},
        {"series", PartCode::Series},       {"point-label", PartCode::PointLabel},
        {"axis", PartCode::Axis},           {"axis-label", PartCode::AxisLabel},
        {"axis-title", PartCode::AxisTitle}};
    const auto found = codes.find(name);
    return found == codes.end() ? std::nullopt : std::optional(found.value());
}

/// The button of that name on the control bar.
BarButton ButtonNamed(const QString& name) {
    static const QMap<QString, BarButton> buttons{{"3D", BarButton::ThreeD},      {"Stack", BarButton::Stack},
                                                  {"100%", BarButton::FullStack}, {"Flip", BarButton::Flip},
                                                  {"Legend", BarButton::Legend},  {"Load", BarButton::Load},
                                                  {"Save", BarButton::Save}};
    if (!buttons.contains(name)) throw NotUnderstood({name});
    return buttons[name];
}

void ClickTab(QDialog& dialog, const QString& text) {
    auto* tabs = dialog.findChild<QTabBar*>();
    for (int tab = 0; tabs != nullptr && tab < tabs->count(); ++tab)
        if (tabs->tabText(tab).remove(u'&') == text) {
            QTest::mouseClick(static_cast<QWidget*>(tabs), Qt::LeftButton, {}, tabs->tabRect(tab).center());
            return;
        }
    throw std::runtime_error("there is no tab " + text.toStdString());
}

void ClickPattern(QDialog& dialog, int style, int index) {
    auto& picker = The<PatternPicker>(dialog, "picStyle");
    for (const PatternPicker::Box& box : picker.Boxes())
        if (static_cast<int>(box.style) == style && box.index == index) {
            QTest::mouseClick(static_cast<QWidget*>(&picker), Qt::LeftButton, {}, box.place.center());
            return;
        }
    throw std::runtime_error("there is no such pattern");
}

} // namespace

QList<SessionPlayer::Step> SessionPlayer::StepsOf(const QString& session) {
    QList<Step> steps;
    for (const QString& line : session.split(u'\n')) {
        if (line.trimmed().isEmpty() || line.trimmed().startsWith(u'#')) continue;
        if (line.startsWith(u' ') && !steps.isEmpty())
            steps.last().inDialog.append(WordsOf(line));
        else
            steps.append({line, WordsOf(line), {}});
    }
    return steps;
}

void SessionPlayer::Play(const QString& session) {
    for (const Step& step : StepsOf(session)) {
        try {
            PlayStep(step);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(step.line.toStdString() + ": " + error.what());
        }
    }
}

void SessionPlayer::PlayStep(const Step& step) {
    // Apply ends a showing of a dialog; somebody else goes on with the next.
    std::list<Person<QDialog>> people;
    std::exception_ptr failure;
    qsizetype done = 0;
    const std::function<void(QDialog&)> deal = [&](QDialog& dialog) {
        try {
            while (done < step.inDialog.size() && dialog.isVisible())
                DoInDialog(dialog, step.inDialog[done++]);
        } catch (...) {
            failure = std::current_exception();
            dialog.reject();
            return;
        }
        // A closed one may come again, a dialog that nothing more is done with is let go.
        if (dialog.isVisible())
            dialog.reject();
        else
            people.emplace_back(deal);
    };
    if (!step.inDialog.isEmpty()) people.emplace_back(deal);
    Do(step.words);
    QApplication::processEvents();
    if (failure) std::rethrow_exception(failure);
    if (done < step.inDialog.size()) throw std::runtime_error("no dialog came of it");
}

void SessionPlayer::Do(const QStringList& words) {
    const QString& what = words.at(0);
    if (what == "type") return ChooseType(form_, words.at(1));
    if (what == "button") return ClickButton(form_, ButtonNamed(words.at(1)));
    if (what == "click") {
        QTest::mouseClick(&form_.ChartImage(), Qt::LeftButton, {}, PlaceOfWords(words));
        return;
    }
    if (what == "double-click") return DoubleClick(form_, PlaceOfWords(words));
    if (what == "menu") {
        OpenMenu(form_, PlaceOfWords(words));
        return ChooseEntry(form_, words.last().toLatin1().constData());
    }
    if (what == "turn") return Turn(form_, {words.at(1).toInt(), words.at(2).toInt()});
    if (what == "key") {
        const QKeyCombination keys = QKeySequence(words.at(1))[0];
        form_.activateWindow(); // a list or dialog that was closed may have left no window active
        if (!QTest::qWaitForWindowActive(&form_)) throw std::runtime_error("the window has no keyboard");
        form_.ChartImage().setFocus();
        QTest::keyClick(form_.windowHandle(), keys.key(), keys.keyboardModifiers());
        return;
    }
    DoOnDesktop(words);
}

void SessionPlayer::DoOnDesktop(const QStringList& words) {
    const QString& what = words.at(0);
    if (what == "colour")
        desktop_.colours.emplace_back(words.at(1));
    else if (what == "font")
        desktop_.fonts.push_back(
            {.family = words.at(1), .size = words.at(2).toDouble(), .bold = true, .colour = Qt::darkBlue});
    else
        throw NotUnderstood(words);
}

void SessionPlayer::DoInDialog(QDialog& dialog, const QStringList& words) {
    const QString& what = words.at(0);
    const QByteArray name = words.at(1).toLatin1();
    if (what == "expect") {
        if (dialog.objectName() != words.at(1))
            throw std::runtime_error("another dialog came: " + dialog.objectName().toStdString());
    } else if (what == "text") {
        TypeInto(The<QLineEdit>(dialog, name.constData()), words.at(2));
    } else if (what == "click") {
        ClickIn(dialog, name.constData());
    } else if (what == "choose") {
        ChooseItem(The<QComboBox>(dialog, name.constData()), words.at(2));
    } else if (what == "tab") {
        ClickTab(dialog, words.at(1));
    } else if (what == "pattern") {
        ClickPattern(dialog, words.at(1).toInt(), words.at(2).toInt());
    } else {
        throw NotUnderstood(words);
    }
}

QPoint SessionPlayer::PlaceOfWords(const QStringList& words) {
    const std::optional<PartCode> code = PartNamed(words.value(1));
    if (!code) throw NotUnderstood(words);
    if (*code == PartCode::Plot) return PlaceOfPlot(form_.ChartImage());
    bool hasIndex = false;
    const int index = words.value(2).toInt(&hasIndex);
    return PlaceOf(form_.ChartImage(), {*code, hasIndex ? index : AnyIndex, AnyIndex});
}
