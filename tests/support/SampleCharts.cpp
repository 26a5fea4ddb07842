#include "support/SampleCharts.h"

#include "support/SampleKit.h"

#include <stdexcept>

namespace QmChart6::Samples {

const std::vector<Sample>& All() {
    static const std::vector<Sample> samples = [] {
        std::vector<Sample> all;
        for (const auto& theme : {Basics, Labels, Axes, Looks, Sizes, Spaces}) {
            const std::vector<Sample> some = theme();
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return samples;
}

const Sample& Named(std::string_view name) {
    for (const Sample& sample : All())
        if (sample.name == name) return sample;
    throw std::logic_error("there is no sample " + std::string(name));
}

} // namespace QmChart6::Samples
