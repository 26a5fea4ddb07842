#pragma once

#include "qmchart6/RuntimeError.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace QmChart6 {

/// An array of one or two dimensions whose indices start at a lower bound that its maker chooses.
/// It either owns its elements (shared between copies, never changed) or looks at the host's own memory,
/// which must then outlive every call that the array is passed to. Indexing outside the bounds, or with
/// another number of indices than there are dimensions, raises error 9.
template<class T>
class Array {
public:
    Array() = default;

    /// A list: element i of `elements` has the index `lowerBound` + i.
    explicit Array(std::vector<T> elements, int lowerBound = 0)
        : rank_(1), first_{lowerBound, static_cast<int>(elements.size())}, firstStride_(1) {
        Own(std::move(elements));
    }

    /// A table of `rows` by `columns`, its elements given row by row.
    static Array Table(int rows, int columns, std::vector<T> elements, int rowLowerBound = 0,
                       int columnLowerBound = 0) {
        if (rows < 0 || columns < 0 ||
            elements.size() != static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns))
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                               QStringLiteral("a table of %1 by %2 needs as many elements, not %3")
                                   .arg(rows)
                                   .arg(columns)
                                   .arg(elements.size()));
        Array table;
        table.rank_ = 2;
        table.first_ = {rowLowerBound, rows};
        table.second_ = {columnLowerBound, columns};
        table.firstStride_ = columns;
        table.secondStride_ = 1;
        table.Own(std::move(elements));
        return table;
    }

    /// A table in the host's memory; strides count elements from one row, or column, to the next.
    static Array View(const T* elements, int rows, int columns, std::ptrdiff_t rowStride,
                      std::ptrdiff_t columnStride, int rowLowerBound = 0, int columnLowerBound = 0) {
        if (rows < 0 || columns < 0 || (elements == nullptr && rows > 0 && columns > 0))
            throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                               QStringLiteral("a table view needs memory and counts of 0 or more"));
        Array table;
        table.rank_ = 2;
        table.first_ = {rowLowerBound, rows};
        table.second_ = {columnLowerBound, columns};
        table.firstStride_ = rowStride;
        table.secondStride_ = columnStride;
        table.elements_ = elements;
        return table;
    }

    /// 0 (never given elements), 1 or 2.
    [[nodiscard]] int Rank() const { return rank_; }
    /// Bounds of dimension 1 or 2; another dimension raises error 9.
    [[nodiscard]] int LowerBound(int dimension = 1) const { return DimensionAt(dimension).lower; }
    [[nodiscard]] int UpperBound(int dimension = 1) const {
        return DimensionAt(dimension).lower + DimensionAt(dimension).count - 1;
    }

    [[nodiscard]] const T& At(int index) const {
        Require(rank_ == 1, index);
        return elements_[first_.Offset(index) * firstStride_];
    }
    [[nodiscard]] const T& At(int row, int column) const {
        Require(rank_ == 2, row);
        return elements_[first_.Offset(row) * firstStride_ + second_.Offset(column) * secondStride_];
    }

private:
    struct Dimension {
        int lower = 0;
        int count = 0;
        [[nodiscard]] std::ptrdiff_t Offset(int index) const {
            const auto offset = static_cast<std::ptrdiff_t>(index) - lower;
            if (offset < 0 || offset >= count)
                throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                                   QStringLiteral("index %1 is not within %2 to %3")
                                       .arg(index)
                                       .arg(lower)
                                       .arg(lower + count - 1));
            return offset;
        }
    };

    static void Require(bool rightRank, int index) {
        if (!rightRank)
            throw RuntimeError(
                ErrorNumber::SubscriptOutOfRange,
                QStringLiteral("index %1 into an array of another number of dimensions").arg(index));
    }
    [[nodiscard]] const Dimension& DimensionAt(int dimension) const {
        Require(dimension >= 1 && dimension <= rank_, dimension);
        return dimension == 1 ? first_ : second_;
    }
    void Own(std::vector<T> elements) {
        auto owner = std::make_shared<const std::vector<T>>(std::move(elements));
        elements_ = owner->data();
        owner_ = std::move(owner);
    }

    int rank_ = 0;
    Dimension first_;
    Dimension second_;
    std::ptrdiff_t firstStride_ = 0;
    std::ptrdiff_t secondStride_ = 0;
    const T* elements_ = nullptr;
    std::shared_ptr<const std::vector<T>> owner_;
};

} // namespace QmChart6
