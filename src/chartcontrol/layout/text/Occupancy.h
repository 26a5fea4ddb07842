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
        const bool within = wanted.left >= box_.left && wanted.top >= box_.top &&
                            wanted.right <= box_.right && wanted.bottom <= box_.bottom;
        if (!within || !IsFree(wanted)) return false;
        Mark(wanted);
        return true;
    }

    /// Takes what of a box lies within, free or not.
    void Mark(const Box& taken) {
        ForEachCell(taken, [](char& cell) {
            cell = 1;
            return true;
        });
    }

private:
    static constexpr double CellSize = 1;

    static int Cells(double length) {
        return std::max(1, static_cast<int>(std::ceil(length / CellSize)) + 1);
    }
    [[nodiscard]] bool IsFree(const Box& wanted) {
        return ForEachCell(wanted, [](const char& cell) { return cell == 0; });
    }

    /// Visits the cells of a box until one says no; whether all said yes.
    template<class Visit>
    bool ForEachCell(const Box& box, Visit visit) {
        const auto cell = [](double place, double start, int count) {
            return std::clamp(static_cast<int>((place - start) / CellSize), 0, count - 1);
        };
        const int lastRow = cell(box.bottom, box_.top, rows_);
        const int lastColumn = cell(box.right, box_.left, columns_);
        for (int row = cell(box.top, box_.top, rows_); row <= lastRow; ++row)
            for (int column = cell(box.left, box_.left, columns_); column <= lastColumn; ++column)
                if (!visit(taken_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                                  static_cast<std::size_t>(column)]))
                    return false;
        return true;
    }

    Box box_;
    int columns_;
    int rows_;
    std::vector<char> taken_;
};

} // namespace QmChart6
