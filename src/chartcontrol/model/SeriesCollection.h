#pragma once

#include "chartcontrol/model/Series.h"

#include <vector>

namespace QmChart6 {

/// The series of a chart, numbered from 1.
class SeriesCollection {
public:
    [[nodiscard]] int Count() const { return static_cast<int>(series_.size()); }
    /// A number outside 1 to Count() raises error 9.
    [[nodiscard]] Series& Item(int number);
    [[nodiscard]] const Series& Item(int number) const;
    [[nodiscard]] Series& operator()(int number) { return Item(number); }
    [[nodiscard]] const Series& operator()(int number) const { return Item(number); }

    auto begin() { return series_.begin(); }
    auto end() { return series_.end(); }
    [[nodiscard]] auto begin() const { return series_.begin(); }
    [[nodiscard]] auto end() const { return series_.end(); }

    /// Keeps the first `count` series; new ones get the control's own look of their number.
    void Resize(int count, ChartType type);

    friend bool operator==(const SeriesCollection&, const SeriesCollection&) = default;

private:
    [[nodiscard]] std::size_t PlaceOf(int number) const;

    std::vector<Series> series_;
};

} // namespace QmChart6
