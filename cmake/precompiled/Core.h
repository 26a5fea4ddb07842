// What most sources of the floors below the widgets include, compiled once. A source still includes what it
// uses.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>
