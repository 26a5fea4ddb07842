#pragma once

#include "chartcontrol/scene/Scene.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace QmChart6 {

/// Which parts of a box are taken, in cells of a few points: labels are placed only where no other stands.
class Occupancy {
public:
    explicit Occupancy(const Box& box)
        : box_(box), columns_(Cells(box.Width())), rows_(Cells(box.Height())),
          taken_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

    /// Takes the cells of a box if it lies within and all of them are free.
    bool Take(const Box& wanted) {
        if (wanted.left < box_.left || wanted.top < box_.top || wanted.right > box_.right ||
            wanted.bottom > box_.bottom)
            return false;
        const Cell first = CellAt(wanted.left, wanted.top);
        const Cell last = CellAt(wanted.right, wanted.bottom);
        for (int row = first.row; row <= last.row; ++row)
            for (int column = first.column; column <= last.column; ++column)
                if (taken_[Index(row, column)] != 0) return false;
        for (int row = first.row; row <= last.row; ++row)
            for (int column = first.column; column <= last.column; ++column) taken_[Index(row, column)] = 1;
        return true;
    }

private:
    struct Cell {
        int column = 0;
        int row = 0;
    };
    static constexpr double CellSize = 2;

    static int Cells(double length) {
        return std::max(1, static_cast<int>(std::ceil(length / CellSize)) + 1);
    }
    [[nodiscard]] Cell CellAt(double x, double y) const {
        return {static_cast<int>((x - box_.left) / CellSize), static_cast<int>((y - box_.top) / CellSize)};
    }
    [[nodiscard]] std::size_t Index(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }

    Box box_;
    int columns_;
    int rows_;
    std::vector<char> taken_;
};

} // namespace QmChart6
