#include "desktop/QtTexts.h"

#include "desktop/Application.h"
#include "desktop/QtDesktop.h"
#include "support/Person.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

/// What the buttons of a question say.
QStringList ButtonsOfAQuestion() {
    EnsureApplication();
    QStringList texts;
    Person<QMessageBox> person([&](QMessageBox& box) {
        for (const auto button : {QMessageBox::Yes, QMessageBox::No})
            texts.append(box.button(button)->text().remove(u'&'));
        box.reject();
    });
    QtDesktop().ShowMessage(nullptr, QStringLiteral("?"), {}, MessageButtons::YesNo);
    return texts;
}

} // namespace

TEST(QtTextsTest, AQuestionsButtonsSpeakTheViewersLanguage) {
    const std::pair<const char*, QStringList> expected[] = {
        {"", {QStringLiteral("Yes"), QStringLiteral("No")}},
        {"pt_BR", {QStringLiteral("Sim"), QStringLiteral("Não")}},
        {"es", {QStringLiteral("Sí"), QStringLiteral("No")}},
        {"it", {QStringLiteral("Sì"), QStringLiteral("No")}},
    };
    for (const auto& [locale, texts] : expected) {
        SetQtTextsLanguage(QLatin1String(locale));
        EXPECT_EQ(ButtonsOfAQuestion(), texts) << locale;
    }
    SetQtTextsLanguage({});
}

TEST(QtTextsTest, TheHostsOwnTextsStayAsTheyAre) {
    SetQtTextsLanguage(QStringLiteral("it"));
    ButtonsOfAQuestion();
    SetQtTextsLanguage({});
    const QMessageBox own(QMessageBox::Question, {}, {}, QMessageBox::Yes);
    EXPECT_EQ(own.button(QMessageBox::Yes)->text().remove(u'&'), "Yes");
}

TEST(QtTextsTest, ALanguageThatQtHasNoTextsOfChangesNothing) {
    SetQtTextsLanguage(QStringLiteral("xx"));
    EXPECT_EQ(ButtonsOfAQuestion().front(), "Yes");
    SetQtTextsLanguage({});
}
