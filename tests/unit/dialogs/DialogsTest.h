#pragma once

#include "support/ScriptedDesktop.h"
#include "text/Languages.h"
#include "text/LocalText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <deque>
#include <functional>

/// A desktop on which each showing of a dialog is dealt with in turn; one that nobody deals with is let go.
/// The dialog is really shown meanwhile, but nothing waits.
class DealingDesktop : public ScriptedDesktop {
public:
    using Deal = std::function<void(QDialog&)>;

    std::deque<Deal> deals;
    int shown = 0;

    void RunModal(QDialog& dialog) override {
        ++shown;
        dialog.show();
        dialog.activateWindow();
        QApplication::processEvents();
        if (!deals.empty()) {
            const Deal deal = deals.front();
            deals.pop_front();
            deal(dialog);
        }
        if (dialog.isVisible()) dialog.reject();
    }
};

class DialogsTest : public testing::Test {
protected:
    /// The control of a name; a missing one ends the test.
    template<class Control>
    static Control& The(QWidget& form, const char* name) {
        auto* control = form.findChild<Control*>(QLatin1String(name));
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    static void Click(QWidget& form, const char* name) { The<QAbstractButton>(form, name).click(); }
    static QComboBox& List(QWidget& form, const char* name) { return The<QComboBox>(form, name); }
    static QCheckBox& Check(QWidget& form, const char* name) { return The<QCheckBox>(form, name); }

    static QStringList Items(const QComboBox& list) {
        QStringList items;
        for (int index = 0; index < list.count(); ++index) items.append(list.itemText(index));
        return items;
    }

    static void Ok(QWidget& form) { Click(form, "btnOK"); }
    static void Apply(QWidget& form) { Click(form, "btnApply"); }
    static void Cancel(QWidget& form) { Click(form, "btnCancel"); }

    ~DialogsTest() override { QmChart6::SetLanguageCode(0); }

    DealingDesktop desktop;

private:
    QmChart6::ScopedDesktop scope_{desktop};
};

/// The languages that texts are in: their codes are below this.
inline const auto LanguageCount = static_cast<std::int16_t>(QmChart6::Languages().size());
