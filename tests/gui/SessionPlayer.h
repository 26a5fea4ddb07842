#pragma once

#include "support/ScriptedDesktop.h"
#include "viewer/GraphForm.h"

#include <QDialog>
#include <QString>
#include <QStringList>

/// Replays what a person did with a viewer, event by event. A session is a text of lines; blank ones and
/// those that begin with "#" say nothing. Indented lines are what is done in the dialog that the line above
/// them opens. A word in quotes may hold blanks.
///
///     type TEXT            chooses a chart type on the control bar
///     button NAME          clicks a button of the control bar
///     click PART [N]       clicks a part of the chart, as title or series 2
///     double-click PART [N]
///     menu PART [N] ENTRY  chooses an entry of the part's context menu
///     turn X Y             drags with Ctrl
///     key KEYS             presses a key on the chart
///     colour NAME          what the colour picker will give
///     font NAME SIZE       what the font picker will give
///
/// In a dialog: expect NAME; text FIELD TEXT; click NAME; choose LIST TEXT; tab TEXT; pattern STYLE INDEX.
class SessionPlayer {
public:
    SessionPlayer(QmChart6::GraphForm& form, ScriptedDesktop& desktop) : form_(form), desktop_(desktop) {}

    /// Does all of it. Raises std::runtime_error, with the line, for what cannot be done.
    void Play(const QString& session);

private:
    struct Step {
        QString line;
        QStringList words;
        QList<QStringList> inDialog;
    };

    static QList<Step> StepsOf(const QString& session);
    void PlayStep(const Step& step);
    void Do(const QStringList& words);
    void DoOnDesktop(const QStringList& words);
    static void DoInDialog(QDialog& dialog, const QStringList& words);
    [[nodiscard]] QPoint PlaceOfWords(const QStringList& words);

    QmChart6::GraphForm& form_;
    ScriptedDesktop& desktop_;
};
