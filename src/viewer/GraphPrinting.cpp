#include "viewer/GraphPrinting.h"

#include "text/LocalText.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

// Logical pixels.
constexpr int WindowSideMargin = 32;
constexpr int WindowEdgeMargin = 24;

} // namespace

GraphPrinting::GraphPrinting(QWidget* owner)
    : QWidget(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setObjectName(QStringLiteral("GraphPrinting"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(LocalText(TextKey::PrintingInProgress));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(WindowSideMargin, WindowEdgeMargin, WindowSideMargin, WindowEdgeMargin);
    auto* text = new QLabel(LocalText(TextKey::PrintingInProgress), this);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    column->addWidget(text);
    adjustSize();
    if (owner != nullptr) move(owner->frameGeometry().center() - rect().center());
    show();
    // So that it is seen before the work begins; clicks wait.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace QmChart6
