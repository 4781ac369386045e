#include "base/numberText.hpp"
#include "check/inputCase.hpp"
#include "check/keyTable.hpp"
#include "waves/waveFactory.hpp"

#include <algorithm>

namespace sorvik {
namespace {

const std::string typeKey = waveGroup + "type";

/// Adds that `key` has no effect because of `reason`.
void addUnread(const inputCase& input, const std::string& key, const std::string& reason,
               report& result) {
    addOfKey(result, "unread-key", input, key, key + " has no effect: " + reason);
}

void addRange(const inputCase& input, const std::string& key, const std::string& message,
              report& result, severity level = severity::error) {
    addOfKey(result, "out-of-range", input, key, key + " is " + message).level = level;
}

/// The names of all types of waves.
std::string typeChoices() {
    std::string names;
    for (const auto& [name, maker] : waveFactory::getRegistry()) {
        names += (names.empty() ? "" : ", ") + name;
    }
    return names;
}

bool checkType(const inputCase& input, report& result) {
    if (!input.has(typeKey)) {
        addOfKey(result, "missing-key", input, typeKey,
                 "Without " + typeKey + " the water stays still. Types are " + typeChoices() + ".");
        return false;
    }
    const std::string type = input.valueOf(typeKey);
    if (waveFactory::getRegistry().count(type) == 0) {
        addRange(input, typeKey, type + ", expected one of " + typeChoices() + ".", result);
        return false;
    }
    return true;
}

/// Keys of other types of waves than the one of the input, and the one without effect.
void checkOtherTypes(const inputCase& input, report& result) {
    const std::string type = input.valueOf(typeKey);
    std::string_view former;
    for (const inputKey& key : keyTable()) {
        const std::string name(key.name);
        const auto isRead = [&](const inputKey& each) {
            return each.name == key.name && (each.waves.empty() || each.waves == type);
        };
        const bool isNew = key.name != former;
        former = key.name;
        if (isNew && input.has(name) &&
            std::none_of(keyTable().begin(), keyTable().end(), isRead)) {
            addUnread(input, name,
                      "the waves are " + type + ", and only those of type " +
                          std::string(key.waves) + " read it.",
                      result);
        }
    }
    const std::string precision = waveGroup + "precision";
    if (input.has(precision)) {
        addUnread(input, precision, "numbers have six digits.", result);
        result.findings.back().level = severity::note;
    }
}

void checkRegular(const inputCase& input, report& result) {
    std::string winner;
    for (const char* name : {"period", "frequency", "omega", "k", "length"}) { // by precedence
        const std::string key = waveGroup + name;
        if (!input.has(key)) {
            continue;
        }
        if (winner.empty()) {
            winner = key;
        } else {
            addUnread(input, key, winner + " wins.", result);
        }
    }
    if (winner.empty()) {
        addOfKey(result, "missing-key", input, waveGroup + "period",
                 "A regular wave needs one of " + waveGroup +
                     "period, frequency, omega, k, length.");
    }
    if (!input.has(waveGroup + "amplitude")) {
        addOfKey(result, "missing-key", input, waveGroup + "amplitude",
                 "Without " + waveGroup + "amplitude the sea is flat.")
            .level = severity::warning;
    }
}

void checkJonswap(const inputCase& input, report& result) {
    const double first = input.number(waveGroup + "f0");
    const double last = input.number(waveGroup + "f1");
    const double peak = input.number(waveGroup + "fp");
    if (last <= first) {
        addRange(input, waveGroup + "f1",
                 numberText(last) + ", not above " + waveGroup + "f0, which is " +
                     numberText(first) + '.',
                 result);
    } else if (peak < first || peak > last) {
        addRange(input, waveGroup + "fp",
                 numberText(peak) + ", outside the frequencies from " + waveGroup +
                     "f0 to f1, which "
                     "are " +
                     numberText(first) + " to " + numberText(last) + '.',
                 result, severity::warning);
    }
    if (input.has(waveGroup + "alpha") && input.number(waveGroup + "Hs") > 0) {
        addUnread(input, waveGroup + "alpha", waveGroup + "Hs gives the height.", result);
    }
}

void checkCustom(const inputCase& input, report& result) {
    const std::string file = waveGroup + "file";
    std::vector<std::size_t> counts;
    for (const char* name : {"amplitude", "frequency", "phase"}) {
        const std::string key = waveGroup + name;
        const bool isGiven = input.has(key);
        if (isGiven && input.has(file)) {
            addUnread(input, key, file + " wins.", result);
        } else if (isGiven) {
            counts.push_back(input.list(key).size());
        } else if (!input.has(file)) {
            addOfKey(result, "missing-key", input, key,
                     "Waves of type custom need " + key + ", or environment.wave.file.");
        }
    }
    if (input.has(file)) {
        if (input.has(waveGroup + "direction")) {
            addUnread(input, waveGroup + "direction", file + " wins.", result);
        }
        checkedFile(input, file, result);
    } else if (counts.size() == 3 && (counts[1] != counts[0] || counts[2] != counts[0])) {
        addRange(input, waveGroup + "frequency",
                 "a list of " + std::to_string(counts[1]) + ", with " + std::to_string(counts[0]) +
                     " amplitudes and " + std::to_string(counts[2]) +
                     " phases. Lists of one length are expected.",
                 result);
    }
}

} // namespace

void checkWaveInput(const inputCase& input, report& result) {
    if (!checkType(input, result)) {
        return;
    }
    const std::string type = input.valueOf(typeKey);
    checkOtherTypes(input, result);
    if (type == "regular") {
        checkRegular(input, result);
    } else if (type == "JONSWAP") {
        checkJonswap(input, result);
    } else if (type == "custom") {
        checkCustom(input, result);
    }
}

} // namespace sorvik
