#include "waves/inputCheck.hpp"

#include "base/numberText.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"

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

} // namespace sorvik
