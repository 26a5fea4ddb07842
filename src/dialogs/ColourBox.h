#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

class QAbstractButton;

namespace QmChart6 {

/// A small framed box that shows a colour, and holds it.
class ColourBox : public QWidget {
    Q_OBJECT

public:
    explicit ColourBox(QWidget* parent = nullptr);

    [[nodiscard]] const QColor& BackColor() const { return colour_; }
    void SetBackColor(const QColor& colour);

    [[nodiscard]] QSize sizeHint() const override { return {48, 22}; }

    /// Asks the person for another colour, starting from the one that is held; cancelled, it stays. Says
    /// whether there is another one.
    bool Pick(const QString& title);

    /// A click on the box is one on the button that opens its picker.
    void OpensBy(QAbstractButton& button);

Q_SIGNALS:
    /// The person chose another colour.
    void Picked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QColor colour_{Qt::white};
    QPointer<QAbstractButton> button_;
};

} // namespace QmChart6
