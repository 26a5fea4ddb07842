#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

namespace QmChart6 {

/// A point of a series: its category, from 0, and its value.
struct Sample {
    int category = 0;
    double value = 0;
};

/// The samples of one series in unbroken runs: a missing value ends a run.
struct Runs {
    std::vector<Sample> samples;
    /// Where each run starts in `samples`, and at last their number.
    std::vector<std::size_t> starts{0};

    [[nodiscard]] std::size_t Count() const { return starts.size() - 1; }
};

/// The last runs that were picked of a column, kept with the column for the next picture of the same
/// geometry. May be asked from any thread.
class RunsCache {
public:
    using Key = std::array<double, 5>;

    /// The runs that were kept under a key; null if there are none.
    [[nodiscard]] std::shared_ptr<const Runs> Find(const Key& key) const {
        const std::lock_guard lock(mutex_);
        return key == key_ ? runs_ : nullptr;
    }
    void Keep(const Key& key, std::shared_ptr<const Runs> runs) {
        const std::lock_guard lock(mutex_);
        key_ = key;
        runs_ = std::move(runs);
    }

private:
    mutable std::mutex mutex_;
    Key key_{};
    std::shared_ptr<const Runs> runs_;
};

} // namespace QmChart6
