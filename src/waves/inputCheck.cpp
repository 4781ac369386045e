#include "waves/inputCheck.hpp"

#include "base/numberText.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"
#include "waves/waveTrain.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

void refuseInput(const std::string& name, const std::string& found, const std::string& expected) {
    printer::fatalError(name + " is " + found + ", expected " + expected);
}

void refuseInput(const std::string& name, double found, const std::string& expected) {
    refuseInput(name, numberText(found), expected);
}

void refuseInput(const reader& config, const std::string& key, double fallback,
                 const std::string& expected) {
    const auto entry = config.inputs.map.find(key);
    if (entry == config.inputs.map.end()) {
        refuseInput(key, fallback, expected);
    }
    refuseInput(key, entry->second, expected);
}

int firstInfinite(const waveTrain& train) {
    const auto& list = train.components();
    const auto first = std::find_if_not(list.begin(), list.end(), [](const waveComponent2D& one) {
        return std::isfinite(one.amplitude()) && std::isfinite(one.angularFrequency()) &&
               std::isfinite(one.waveNumber());
    });
    return first == list.end() ? -1 : static_cast<int>(first - list.begin());
}

} // namespace sorvik
