#include "dialogs/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <vector>

namespace QmChart6 {

namespace {

using Keys = std::set<QChar>;
/// Where the key of each caption stands in it; NoKey for none.
using Places = std::vector<int>;
constexpr int NoKey = -1;

bool CanBeKey(QChar character) {
    return character.unicode() < 128 && character.isLetterOrNumber();
}

/// The places of a caption that can be its key, the beginnings of words first.
std::vector<int> PlacesOf(const QString& text) {
    std::vector<int> firsts;
    std::vector<int> others;
    Keys seen;
    for (const bool beginnings : {true, false}) {
        for (int place = 0; place < text.size(); ++place) {
            const bool begins = place == 0 || !text[place - 1].isLetterOrNumber();
            if (begins != beginnings || !CanBeKey(text[place])) continue;
            if (seen.insert(text[place].toLower()).second) (begins ? firsts : others).push_back(place);
        }
    }
    firsts.insert(firsts.end(), others.begin(), others.end());
    return firsts;
}

/// Gives keys to captions of one page. A caption that finds all its letters taken makes another one move, so
/// that as many as can be get a key.
class Assignment {
public:
    Assignment(const QStringList& texts, const Keys& taken) : texts_(texts), taken_(taken) {
        places_.assign(static_cast<std::size_t>(texts.size()), NoKey);
        for (int caption = 0; caption < texts.size(); ++caption) {
            Keys visited;
            if (!Place(caption, visited)) complete_ = false;
        }
    }

    [[nodiscard]] bool Complete() const { return complete_; }
    [[nodiscard]] const Places& Found() const { return places_; }

private:
    // NOLINTNEXTLINE(misc-no-recursion): at most as deep as there are letters
    bool Place(int caption, Keys& visited) {
        for (const int place : PlacesOf(texts_[caption])) {
            const QChar key = texts_[caption][place].toLower();
            if (taken_.contains(key) || !visited.insert(key).second) continue;
            const auto holder = holders_.find(key);
            if (holder != holders_.end() && !Place(holder->second, visited)) continue;
            holders_[key] = caption;
            places_[static_cast<std::size_t>(caption)] = place;
            return true;
        }
        return false;
    }

    const QStringList& texts_;
    const Keys& taken_;
    std::map<QChar, int> holders_;
    Places places_;
    bool complete_ = true;
};

/// Chooses the keys of the captions that are always seen, so that every page still finds its own.
class CommonKeys {
public:
    explicit CommonKeys(const Captions& captions) : captions_(captions) {}

    /// Nothing where there is no such choice.
    bool Find() { return FindFrom(0); }
    [[nodiscard]] const Keys& Taken() const { return taken_; }
    [[nodiscard]] const Places& Found() const { return places_; }

private:
    // NOLINTNEXTLINE(misc-no-recursion): as deep as there are captions
    bool FindFrom(int caption) {
        if (--triesLeft_ < 0) return false;
        const bool pagesFit =
            std::all_of(captions_.pages.begin(), captions_.pages.end(),
                        [&](const QStringList& page) { return Assignment(page, taken_).Complete(); });
        if (!pagesFit) return false;
        if (caption == captions_.always.size()) return true;
        const QString& text = captions_.always[caption];
        for (const int place : PlacesOf(text)) {
            const QChar key = text[place].toLower();
            if (!taken_.insert(key).second) continue;
            places_.push_back(place);
            if (FindFrom(caption + 1)) return true;
            places_.pop_back();
            taken_.erase(key);
        }
        return false;
    }

    const Captions& captions_;
    Keys taken_;
    Places places_;
    /// So that captions with too few letters among them end soon.
    int triesLeft_ = 5000;
};

QString Marked(const QString& text, int place) {
    QString marked;
    for (int at = 0; at < text.size(); ++at) {
        if (at == place || text[at] == u'&') marked += u'&';
        marked += text[at];
    }
    return marked;
}

QStringList Marked(const QStringList& texts, const Places& places) {
    QStringList marked;
    for (int caption = 0; caption < texts.size(); ++caption)
        marked.append(Marked(texts[caption], places[static_cast<std::size_t>(caption)]));
    return marked;
}

Keys KeysAt(const QStringList& texts, const Places& places) {
    Keys keys;
    for (int caption = 0; caption < texts.size(); ++caption) {
        const int place = places[static_cast<std::size_t>(caption)];
        if (place != NoKey) keys.insert(texts[caption][place].toLower());
    }
    return keys;
}

/// A caption in a dialog, and how it is changed.
struct Place {
    QString text;
    std::function<void(const QString&)> write;
};

std::vector<Place> PlacesOfTabs(QTabWidget& tabs) {
    std::vector<Place> places;
    places.reserve(static_cast<std::size_t>(tabs.count()));
    for (int tab = 0; tab < tabs.count(); ++tab)
        places.push_back(
            {tabs.tabText(tab), [&tabs, tab](const QString& text) { tabs.setTabText(tab, text); }});
    return places;
}

/// The captions below a widget in the order in which they were made, those in `pages` left out.
std::vector<Place> PlacesBelow(QWidget& top, const QList<QWidget*>& pages) {
    std::vector<Place> places;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        const bool inPage = std::any_of(pages.begin(), pages.end(),
                                        [&](const QWidget* page) { return page->isAncestorOf(widget); });
        if (inPage) continue;
        auto* button = qobject_cast<QAbstractButton*>(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        const bool ofTabBar = qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
        if (button != nullptr && !ofTabBar && !button->text().isEmpty())
            places.push_back({button->text(), [button](const QString& text) { button->setText(text); }});
        else if (label != nullptr && label->buddy() != nullptr)
            places.push_back({label->text(), [label](const QString& text) { label->setText(text); }});
    }
    return places;
}

QStringList TextsOf(const std::vector<Place>& places) {
    QStringList texts;
    for (const Place& place : places) texts.append(place.text);
    return texts;
}

void Write(const std::vector<Place>& places, const QStringList& texts) {
    for (std::size_t at = 0; at < places.size(); ++at) places[at].write(texts[static_cast<int>(at)]);
}

} // namespace

Captions WithMnemonics(const Captions& captions) {
    CommonKeys common(captions);
    Places places;
    if (common.Find())
        places = common.Found();
    else
        places = Assignment(captions.always, {}).Found();
    const Keys taken = KeysAt(captions.always, places);
    Captions marked{.always = Marked(captions.always, places), .pages = {}};
    for (const QStringList& page : captions.pages)
        marked.pages.append(Marked(page, Assignment(page, taken).Found()));
    return marked;
}

void GiveMnemonics(QWidget& dialog) {
    std::vector<Place> always;
    std::vector<std::vector<Place>> onPages;
    QList<QWidget*> pages;
    Captions captions;
    for (QTabWidget* tabs : dialog.findChildren<QTabWidget*>()) {
        for (Place& place : PlacesOfTabs(*tabs)) always.push_back(std::move(place));
        for (int tab = 0; tab < tabs->count(); ++tab) pages.append(tabs->widget(tab));
    }
    for (Place& place : PlacesBelow(dialog, pages)) always.push_back(std::move(place));
    captions.always = TextsOf(always);
    for (QWidget* page : pages) {
        onPages.push_back(PlacesBelow(*page, {}));
        captions.pages.append(TextsOf(onPages.back()));
    }
    const Captions marked = WithMnemonics(captions);
    Write(always, marked.always);
    for (std::size_t page = 0; page < onPages.size(); ++page)
        Write(onPages[page], marked.pages[static_cast<int>(page)]);
}

} // namespace QmChart6
