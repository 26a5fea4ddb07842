#pragma once

#include "desktop/Desktop.h"

#include <QWidget>

namespace QmChart6 {

/// Shows one line of a text in its font and colour, cut where it is too long. Large letters are shown
/// smaller.
class TextSample : public QWidget {
    Q_OBJECT

public:
    explicit TextSample(QWidget* parent = nullptr);

    void SetText(const QString& text);
    void SetFont(const FontChoice& font);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    FontChoice font_;
};

} // namespace QmChart6
