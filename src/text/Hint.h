#pragma once

#include <cstddef>

namespace QmChart6 {

/// What is said beside the texts that have numbers: hints, names of patterns, the card of keys.
enum class Hint {
    NothingChosen, ///< of the list of stored looks
    NoFill,        ///< ways to fill an area
    SolidFill,
    Dots,
    BoldHorizontalLines,
    BoldVerticalLines,
    BoldFallingLines,
    BoldRisingLines,
    Checks,
    Weave,
    HorizontalLines,
    VerticalLines,
    FallingLines,
    RisingLines,
    Squares,
    Trellis,
    InvertedTrellis,
    HorizontalHatch,
    VerticalHatch,
    FallingHatch,
    RisingHatch,
    CrossHatch,
    DiagonalCrossHatch,
    FontNotInstalled, ///< %1 the font's name, %2 what is drawn
    PictureForm,
    NoSuchPictureForm, ///< %1 the name, %2 the endings
    PrintPreview,
    KeysAndMouse, ///< the card of keys, and what each does
    ThisCard,
    CopyChart,
    SavePicture,
    PrintTheChart,
    TakeBack,
    DoAgain,
    WalkParts,
    WalkPoints,
    EndPoints,
    EditPart,
    PartMenu,
    SelectNothing,
    SelectPart,
    TurnView,
    ArrowKeys,
    Click,
    DoubleClick,
    RightClick,
    CtrlDrag,
    MovePart, ///< title, footnote or legend
    MoveByAPoint,
    OwnPlace,
    Dragging,
    CtrlArrowKeys,
};

inline constexpr std::size_t HintCount = static_cast<std::size_t>(Hint::CtrlArrowKeys) + 1;

} // namespace QmChart6
