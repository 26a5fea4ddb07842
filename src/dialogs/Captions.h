#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QWidget;

namespace QmChart6 {

/// Names a control as its form does, and says to assistive tools what it is: `text` in short, `group` the
/// title of the frame that it stands in, where that tells it from others.
void Describe(QWidget& control, const char* name, const QString& text, const QString& group = {});

/// A label with "text:" for the control that it stands before, which takes the text as its accessible name.
QLabel* NewLabel(QWidget* parent, const char* name, const QString& text, QWidget& buddy);

/// The caption of a button that opens a further dialog: "text...".
QString WithDots(const QString& text);

/// Rows of a caption and its control, at the top of a page.
QGridLayout* NewGrid(QWidget* page);

} // namespace QmChart6
