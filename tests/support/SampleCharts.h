#pragma once

#include "chartcontrol/model/Chart.h"

#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace QmChart6::Samples {

/// A chart that goldens, the gallery and property tests share: its name, its size in logical pixels, and how
/// to make it.
struct Sample {
    std::string name;
    int width = 640;
    int height = 420;
    std::function<Chart()> make;
};

/// A sample's name stands for it in what tests print.
inline void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

/// Every sample, in the order of the gallery.
const std::vector<Sample>& All();

/// The sample of a name; a name that is not there is a test's own mistake and ends it.
const Sample& Named(std::string_view name);

/// The sample's name as one of a parameterized test: letters, digits and underscores.
struct TestName {
    template<class Info>
    std::string operator()(const Info& info) const {
        std::string name = info.param.name;
        for (char& character : name)
            if (character == '-') character = '_';
        return name;
    }
};

/// A grid of `rows` by `columns` filled by `value`(row, column), both from 1, with labels "Row 1", "Series
/// 1".
Chart ChartOf(int rows, int columns, const std::function<double(int, int)>& value);

inline double Missing() {
    return std::numeric_limits<double>::quiet_NaN();
}

} // namespace QmChart6::Samples
