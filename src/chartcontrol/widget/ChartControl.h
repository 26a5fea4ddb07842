#pragma once

#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/model/ChartVocabulary.h"
#include "chartcontrol/widget/ChartPart.h"
#include "chartcontrol/widget/HandMove.h"

#include <QImage>
#include <QPoint>
#include <QWidget>

#include <optional>

namespace QmChart6 {

/// The charting control: a widget that shows a chart. The model is public: whoever changes it calls Refresh,
/// and the next paint lays the chart out anew, once, however many changes there were.
///
/// A left click selects the part under the pointer, a right click too before it asks for a context menu. By
/// keyboard, Tab walks the parts, the arrows walk a series' points and the series, Home and End go to its
/// ends, Enter activates, the menu key asks for the menu, Escape selects nothing. Title, footnote and legend
/// are moved by dragging, which Escape takes back, or point by point with Ctrl and the arrows; Home puts them
/// back where layout has them. Dragging with Ctrl and the left button turns a 3D chart. The selection is an
/// overlay on the screen: no picture and no copy shows it.
class ChartControl : public QWidget {
    Q_OBJECT

public:
    explicit ChartControl(QWidget* parent = nullptr);
    ~ChartControl() override;

    [[nodiscard]] Chart& Model() { return chart_; }
    [[nodiscard]] const Chart& Model() const { return chart_; }

    /// The words of tool tips and of what screen readers tell.
    [[nodiscard]] const ChartVocabulary& Vocabulary() const { return vocabulary_; }
    void SetVocabulary(const ChartVocabulary& words) { vocabulary_ = words; }

    /// While off, nothing is painted anew; switching it on refreshes.
    void SetRepaint(bool on);
    [[nodiscard]] bool Repaint() const { return repaint_; }
    void Refresh();

    /// The scene of the model at the widget's size, laid out when it is asked for and out of date.
    [[nodiscard]] const Scene& CurrentScene() { return CurrentLayout().scene; }
    /// The same, with the places of the data points.
    [[nodiscard]] const LaidOutChart& CurrentLayout();

    /// Puts the chart on the clipboard as SVG, PNG, BMP, EMF, PDF and its table as tab-separated text, each
    /// made when it is asked for, all from the chart as it is now.
    void CopyToClipboard() const;

    /// The part at a place, in twips from the control's top left corner: NoPart outside the control, the
    /// chart where nothing else is.
    void TwipsToChartPart(int x, int y, int& part, int& index1, int& index2, int& index3, int& index4);
    /// Selects a part and shows handles at it; NoPart selects nothing. Raises 380 for a code that stands for
    /// no part, 5 or 9 for an axis or a series that is not there.
    void SelectPart(int part, int index1, int index2, int index3, int index4);
    void GetSelectedPart(int& part, int& index1, int& index2, int& index3, int& index4) const;
    [[nodiscard]] const ChartPart& SelectedPart() const { return selected_; }

Q_SIGNALS:
    /// Another part is selected, or NoPart.
    void PartSelected(int part, int index1, int index2, int index3, int index4);
    /// The selected part was double-clicked, or Enter was pressed.
    void PartActivated(int part, int index1, int index2, int index3, int index4);
    /// A context menu is wanted for the selected part, at a place in the control. While nobody is connected,
    /// the parent gets the events that ask for it.
    void ContextMenuWanted(const QPoint& place);
    /// A 3D chart was turned by hand and let go; from where it stood before.
    void ViewTurned(const QmChart6::View3d& before);
    /// Title, footnote or legend was moved by hand; from where it stood before.
    void PartMoved(int part, const QmChart6::Location& before);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void Select(const ChartPart& part);
    void Activate();
    [[nodiscard]] ChartPart PartAtPixel(const QPointF& place);
    [[nodiscard]] bool MoveSelection(int key);
    void StartDrag(const QPointF& place);
    void Drag(const QPointF& place);
    void EndDrag(bool keep);
    /// Moves the selected part as the key says, where it is one that moves.
    [[nodiscard]] bool MovePart(int key, Qt::KeyboardModifiers modifiers);
    void PlacePart(const HandPlace& place);
    void SetPartLocation(const Location& location);
    /// The box of the selected part, where it is one that moves.
    [[nodiscard]] std::optional<Box> MovableBox();
    void PaintDrag(QPainter& painter);
    /// Whether somebody takes the wish for a menu.
    bool WantContextMenu(const QPoint& place);
    /// The place of the selected part that a menu is shown at.
    [[nodiscard]] QPoint PlaceOfSelection();
    void ShowTip(const QPoint& place, const QPoint& globalPlace);
    void PaintSelection(QPainter& painter);
    void DropSelectionThatIsGone();

    /// Device pixels to a point where the widget is shown now.
    [[nodiscard]] double PixelsPerPoint() const;

    Chart chart_;
    ChartVocabulary vocabulary_;
    [[nodiscard]] const QImage& CurrentPicture();

    std::optional<LaidOutChart> laidOut_;
    QImage picture_; // of the scene; none while it is not painted
    double scenePixelsPerPoint_ = 0;
    bool repaint_ = true;
    ChartPart selected_;
    /// Where the pointer was when the view was last turned, while it is being turned.
    std::optional<QPointF> turnedFrom_;
    /// How the chart stood when the turning began.
    View3d viewBefore_;

    struct Dragged {
        QPointF from;
        Box box;
        /// Nothing until the pointer has gone far enough.
        std::optional<HandPlace> place;
    };
    std::optional<Dragged> dragged_;
};

} // namespace QmChart6
