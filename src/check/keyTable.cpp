#include "check/keyTable.hpp"

#include "base/affixes.hpp"
#include "base/numberText.hpp"

#include <algorithm>

namespace sorvik {
namespace {

constexpr std::string_view bodyMark = "hydroBodyB";

// ---- The words of the table ----

constexpr keyType text = keyType::text;
constexpr keyType number = keyType::number;
constexpr keyType integer = keyType::integer;
constexpr keyType list = keyType::list;
constexpr keyType point = keyType::point;

constexpr keyRange any;
constexpr keyRange above0{keyRange::kind::above};
constexpr keyRange below0{keyRange::kind::below};
constexpr keyRange notZero{keyRange::kind::notZero};

constexpr keyRange atLeast(double low) {
    return {keyRange::kind::atLeast, low};
}

constexpr keyRange between(double low, double high) {
    return {keyRange::kind::between, low, high};
}

/// A range that is harmless to leave.
constexpr keyRange mild(keyRange range) {
    range.outside = severity::warning;
    return range;
}

constexpr inputKey key(std::string_view name, std::string_view tasks, std::string_view waves,
                       keyType type, std::string_view unit, std::string_view fallback,
                       keyRange range, std::string_view meaning, std::string_view wrong) {
    return {name, tasks, waves, type, unit, fallback, range, meaning, wrong};
}

std::string_view nameOf(keyType type) {
    switch (type) {
    case keyType::number: return "number";
    case keyType::integer: return "integer";
    case keyType::list: return "list";
    case keyType::point: return "list of 3";
    case keyType::text: break;
    }
    return "text";
}

} // namespace

bool keyRange::holds(double value) const {
    switch (rule) {
    case kind::above: return value > low;
    case kind::atLeast: return value >= low;
    case kind::below: return value < low;
    case kind::notZero: return value < 0 || value > 0;
    case kind::between: return value >= low && value <= high;
    case kind::any: break;
    }
    return true;
}

std::string keyRange::text() const {
    switch (rule) {
    case kind::above: return "above " + numberText(low);
    case kind::atLeast: return "at least " + numberText(low);
    case kind::below: return "below " + numberText(low);
    case kind::notZero: return "not 0";
    case kind::between: return "from " + numberText(low) + " to " + numberText(high);
    case kind::any: break;
    }
    return "";
}

std::string inputKey::nameFor(std::string_view body) const {
    std::string full(name);
    if (startsWith(full, bodyMark)) {
        full.replace(bodyGroup.size(), 1, body);
    }
    return full;
}

const std::vector<inputKey>& keyTable() {
    static const std::vector<inputKey> keys = {
        key("bem.output", "N", "", text, "", "required", any,
            "project folder; its parent must exist",
            "missing: ERROR, status 255. No parent: fatal"),
        key("bem.body", "N", "", text, "", "required", any, "name of the body",
            "missing: ERROR, status 255"),
        key("bem.w0", "N", "", number, "rad/s", "0.01", above0, "lowest frequency",
            "written unchecked"),
        key("bem.w1", "N", "", number, "rad/s", "5", above0, "highest frequency",
            "written unchecked"),
        key("bem.nFreqs", "N", "", integer, "", "2", atLeast(1), "number of frequencies",
            "written unchecked"),
        key("bem.dir0", "N", "", number, "degrees", "0", mild(between(-360, 360)),
            "first wave direction", "written unchecked"),
        key("bem.dir1", "N", "", number, "degrees", "90", mild(between(-360, 360)),
            "last wave direction", "written unchecked"),
        key("bem.nDirs", "N", "", integer, "", "2", atLeast(1), "number of directions",
            "written unchecked"),
        key("hydroBodyB.bemInput.meshName", "N", "", text, "", "`KEY_NOT_FOUND`", any,
            "mesh of the hull", "unknown ending: status 1. Missing file: project without panels"),
        key("hydroBodyB.bemInput.cogInMesh", "N", "", point, "m", "0 0 0", any,
            "point of the mesh file that comes to `position`, normally the centre of gravity",
            "fewer than 3: FATAL ERROR, status 255; more are ignored"),
        key("hydroBodyB.bemInput.position", "N", "", point, "m", "0 0 0", any,
            "where that point comes to; reference point of rotations", "as `cogInMesh`"),
        key("hydroBodyB.bemInput.keepMesh", "N", "", integer, "", "0", any,
            "other than 0: copy the mesh unchanged", "`true` and `yes` are 0"),
        key("environment.waterDensity", "N W", "", number, "kg/m3", "1000", above0,
            "density of the water; does not affect the results of W", "used unchecked"),
        key("environment.airDensity", "W", "", number, "kg/m3", "1", mild(atLeast(0)),
            "density of the air; no effect on results", "used unchecked"),
        key("environment.gravity", "N W", "", number, "m/s2", "-9.81", below0, "gravity along z",
            "N writes the opposite: 9.81 becomes -9.81. W takes the magnitude; 0 with waves: "
            "fatal"),
        key("environment.waterLevel", "N W", "", number, "m", "0", any,
            "z of the still water; N and W use it for the depth only", "see the depth below"),
        key("environment.ground.level", "N W", "", number, "m", "-1000", any, "z of the sea bed",
            "see the depth below"),
        key("environment.wave.depth", "N W", "", number, "m", "water level less ground level",
            above0, "water depth", "N: written unchecked. W with waves, 0 or below: fatal"),
        key("environment.wave.type", "W", "", text, "", "still water", any,
            "`regular`, `JONSWAP` or `custom`",
            "another name: FATAL ERROR with the choices, status 1"),
        key("environment.wave.rampTime", "W", "", number, "s", "0", mild(atLeast(0)),
            "duration of the start-up ramp", "below 0: as 0"),
        key("environment.wave.useRadians", "W", "", integer, "", "0", mild(between(0, 1)),
            "1: angles in rad, frequencies in rad/s",
            "`true` is 0. Other numbers u: `regular` multiplies angles by (1 - u) pi/180 + u, the "
            "other types treat them as 1"),
        key("environment.wave.precision", "W", "", integer, "", "", any,
            "no effect: numbers have six digits", ""),
        key("environment.wave.direction", "W", "", number, "degrees", "0", any,
            "direction of travel, all types", "used unchecked"),
        key("environment.wave.amplitude", "W", "regular", number, "m", "0", any,
            "of the `regular` wave", "0: a warning, and a flat sea"),
        key("environment.wave.amplitude", "W", "custom", list, "m", "required", any,
            "of `custom` components", "missing: fatal. Lists of different lengths: status 255"),
        key("environment.wave.phase", "W", "regular", number, "degrees", "0", any,
            "of the `regular` wave", "used unchecked"),
        key("environment.wave.phase", "W", "custom", list, "degrees", "required", any,
            "of `custom` components", "as `amplitude`"),
        key("environment.wave.period", "W", "regular", number, "s", "one of the five is required",
            notZero, "`regular`: T", "0: fatal; below 0 the wave travels the other way"),
        key("environment.wave.frequency", "W", "regular", number, "Hz", "", notZero, "`regular`: f",
            "as `period`"),
        key("environment.wave.frequency", "W", "custom", list, "Hz", "required", any,
            "of `custom` components", "as `amplitude`"),
        key("environment.wave.omega", "W", "regular", number, "rad/s", "", notZero,
            "`regular`: omega", "as `period`"),
        key("environment.wave.k", "W", "regular", number, "rad/m", "", notZero,
            "`regular`: wave number", "as `period`"),
        key("environment.wave.length", "W", "regular", number, "m", "", notZero,
            "`regular`: wave length", "as `period`"),
        key("environment.wave.Hs", "W", "JONSWAP", number, "m", "from `alpha`", mild(above0),
            "`JONSWAP`: significant wave height", "0 or below: as if not given"),
        key("environment.wave.fp", "W", "JONSWAP", number, "Hz", "0.1", above0, "peak frequency",
            "0 or below: fatal"),
        key("environment.wave.gamma", "W", "JONSWAP", number, "", "1", above0, "peak enhancement",
            "0: no energy near the peak; below 0: fatal"),
        key("environment.wave.sigma1", "W", "JONSWAP", number, "", "0.07", mild(above0),
            "spectral width up to the peak", "0: no enhancement"),
        key("environment.wave.sigma2", "W", "JONSWAP", number, "", "0.09", mild(above0),
            "spectral width above the peak", "0: no enhancement"),
        key("environment.wave.alpha", "W", "JONSWAP", number, "", "0.0081", above0,
            "spectral level, without `Hs`", "0: a flat sea, with `Hs` fatal; below 0: fatal"),
        key("environment.wave.f0", "W", "JONSWAP", number, "Hz", "0.01", above0, "lowest frequency",
            "0 or below: fatal"),
        key("environment.wave.f1", "W", "JONSWAP", number, "Hz", "10", above0, "highest frequency",
            "not above `f0`: fatal"),
        key("environment.wave.components", "W", "JONSWAP", integer, "", "100", atLeast(2),
            "number of frequencies", "below 2, or beyond memory: fatal"),
        key("environment.wave.seed", "W", "JONSWAP", integer, "", "-1", any,
            "seed of the random phases; -1 draws one", "text: seed 0"),
        key("environment.wave.file", "W", "custom", text, "", "", any,
            "`custom`: file of components; `amplitude`, `frequency`, `phase` and `direction` are "
            "then ignored",
            "missing, without a block or cut off: fatal"),
        key("simulation.time.start", "W", "", number, "s", "0", any, "first instant",
            "a span that is not finite: fatal"),
        key("simulation.time.end", "W", "", number, "s", "100", any, "last instant",
            "before the start: an empty table"),
        key("simulation.print.dt", "W", "", number, "s", "0.05", above0, "time step",
            "0, or more than 2^53 instants: fatal; below 0: an empty table, unless the end is "
            "before the start"),
        key("simulation.API.output", "W", "", text, "", "name of the input", any,
            "output folder with `-API`", ""),
    };
    return keys;
}

const inputKey* findKey(std::string_view name) {
    // The name of a body may hold dots.
    const bool isOfBody = startsWith(name, bodyGroup);
    const std::size_t member = isOfBody ? name.rfind(".bemInput.") : name.npos;
    const auto isNamed = [&](const inputKey& key) {
        return member == name.npos ? key.name == name
                                   : startsWith(key.name, bodyMark) &&
                                         key.name.substr(bodyMark.size()) == name.substr(member);
    };
    const auto found = std::find_if(keyTable().begin(), keyTable().end(), isNamed);
    return found == keyTable().end() ? nullptr : &*found;
}

std::string manualRow(const inputKey& key, std::string_view former) {
    const auto cell = [](const std::string& value) {
        return value.empty() ? " |" : " " + value + " |";
    };
    const std::string range = key.range.text();
    std::string type(nameOf(key.type));
    type += (range.empty() ? "" : " ") + range;
    type += (key.unit.empty() ? "" : ", ") + std::string(key.unit);
    return "|" + cell(key.name == former ? "" : '`' + std::string(key.name) + '`') +
           cell(std::string(key.meaning)) + cell(type) + cell(std::string(key.fallback)) +
           cell(std::string(key.tasks)) + cell(std::string(key.wrong));
}

} // namespace sorvik
