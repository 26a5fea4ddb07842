#pragma once

#include "chartcontrol/model/Drawing.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <optional>
#include <vector>

namespace QmChart6 {

/// Chooses how an area is filled: not at all, plain, or with one of the hatches and patterns, each shown in
/// the colours that it would be filled with. A click takes the box under the pointer; the arrow keys, Home
/// and End walk the boxes.
class PatternPicker : public QWidget {
    Q_OBJECT

public:
    /// A choice and the place of its box, in logical pixels.
    struct Box {
        BrushStyle style;
        int index;
        QRect place;
    };

    explicit PatternPicker(QWidget* parent = nullptr);

    /// Every box: the two plain ones, the hatches, the patterns.
    [[nodiscard]] const std::vector<Box>& Boxes() const { return boxes_; }

    [[nodiscard]] BrushStyle Style() const { return style_; }
    [[nodiscard]] int Index() const { return index_; }
    /// Draws the selection round the box of a choice; round none where there is no such box.
    void Select(BrushStyle style, int index);
    void SetColours(Colour fill, Colour pattern);

    /// How far from the picker's left edge the boxes' frames begin, in logical pixels.
    [[nodiscard]] static int LeftEdge();

    /// What a box is called, in the process' language; "" for one that there is not.
    [[nodiscard]] QString NameOf(int box) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Another box was chosen, by click or key.
    void Chosen();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static constexpr int NoBox = -1;

    [[nodiscard]] int SelectedBox() const;
    [[nodiscard]] int BoxAt(QPoint place) const;
    [[nodiscard]] int BoxBeside(int box, QPoint direction) const;
    [[nodiscard]] std::optional<int> BoxByKey(int key, int from) const;
    void Choose(int box);
    [[nodiscard]] QImage Swatches(double pixelRatio) const;

    std::vector<Box> boxes_;
    std::vector<QString> names_;
    BrushStyle style_ = BrushStyle::Solid;
    int index_ = 0;
    Colour fill_{255, 255, 255};
    Colour pattern_;
};

} // namespace QmChart6
