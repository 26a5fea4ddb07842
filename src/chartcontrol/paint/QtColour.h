#pragma once

#include "chartcontrol/model/Drawing.h"

#include <QColor>

namespace QmChart6 {

inline QColor QtColourOf(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

} // namespace QmChart6
