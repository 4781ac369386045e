#include "check/inputCase.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "check/keyTable.hpp"
#include "io/sorvikIO.hpp"

namespace sorvik {

std::string inputCase::valueOf(const std::string& key, const std::string& fallback) const {
    const auto entry = inputs.map.find(key);
    return entry == inputs.map.end() ? fallback : entry->second;
}

double inputCase::number(const std::string& key) const {
    const inputKey* known = findKey(key);
    const std::string fallback(known == nullptr ? "" : known->fallback);
    if (known != nullptr && known->type == keyType::integer) {
        return inputs.read<int>(key, static_cast<int>(leadingNumber(fallback.c_str())));
    }
    return inputs.read<double>(key, leadingNumber(fallback.c_str()));
}

std::vector<double> inputCase::list(const std::string& key) const {
    return inputs.read<std::vector<double>>(key, {});
}

const textEntry* inputCase::entryOf(const std::string& key) const {
    const auto place = text.kept.find(key);
    return place == text.kept.end() ? nullptr : &text.entries[place->second];
}

location inputCase::placeOf(const std::string& key) const {
    const textEntry* entry = entryOf(key);
    return location::ofKey(key, entry == nullptr ? 0 : entry->line);
}

finding& addOfKey(report& result, std::string_view kind, const inputCase& input,
                  const std::string& key, std::string message) {
    return result.add(kind, std::move(message), {input.placeOf(key)});
}

double depthOf(const inputCase& input) {
    return input.has("environment.wave.depth")
               ? input.number("environment.wave.depth")
               : input.number("environment.waterLevel") - input.number("environment.ground.level");
}

std::string checkedFile(const inputCase& input, const std::string& key, report& result) {
    std::string name = input.valueOf(key);
    if (files::canOpen(name)) {
        return name;
    }
    const auto folder = platform::pathOf(input.file).parent_path();
    std::string beside = platform::nameOf(folder / platform::pathOf(name));
    if (!folder.empty() && files::canOpen(beside)) {
        finding& found = addOfKey(result, "missing-file", input, key,
                                  key + " names " + name +
                                      ", which is not in the current folder, but beside the input. "
                                      "Names are relative to the folder where the task is run.");
        found.level = severity::warning;
        found.cure = "Run the task in the folder " + folder.string() + ".";
        return beside;
    }
    addOfKey(result, "missing-file", input, key,
             key + " names " + name + ", which cannot be opened.");
    return "";
}

} // namespace sorvik
