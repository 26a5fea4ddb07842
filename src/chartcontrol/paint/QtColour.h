#pragma once

#include "chartcontrol/model/Drawing.h"

#include <QColor>

namespace QmChart6 {

inline QColor QtColourOf(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

inline QRgb RgbOf(Colour colour) {
    return qRgb(colour.Red, colour.Green, colour.Blue);
}

/// How much of it shines through is left out.
inline Colour ColourOf(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

} // namespace QmChart6
