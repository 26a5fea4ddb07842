#pragma once

#include <QWidget>

namespace QmChart6 {

/// One panel of a status bar. It keeps its whole text and shows as much of it as there is room for.
class StatusPanel : public QWidget {
    Q_OBJECT

public:
    /// How wide the panel would be: as its text needs, from `least` to `most` logical pixels. A panel without
    /// text is not there at all when `least` is 0.
    StatusPanel(int least, int most, QWidget* parent = nullptr);

    [[nodiscard]] const QString& Text() const { return text_; }
    void SetText(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    int least_;
    int most_;
};

} // namespace QmChart6
