#pragma once

#include "check/finding.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace sorvik {

/// The names of keys of waves begin with it.
inline const std::string waveGroup = "environment.wave.";
/// The groups of keys of bodies are called so, followed by the name of the body.
constexpr std::string_view bodyGroup = "hydroBody";

enum class keyType { text, number, integer, list, point };

/// The numbers that a key may have.
struct keyRange {
    enum class kind { any, above, atLeast, below, notZero, between };
    kind rule = kind::any;
    double low = 0;
    double high = 0;                    ///< of `between`, which includes its ends
    severity outside = severity::error; ///< of a value outside

    /// NaN is in no range but `any`.
    bool holds(double value) const;
    /// Such as "above 0"; empty for any number.
    std::string text() const;
};

/// A key of the input file that a task reads.
struct inputKey {
    std::string_view name;  ///< where "hydroBodyB" stands for "hydroBody" and the value of bem.body
    std::string_view tasks; ///< "N" for -nemoh, "W" for -waveElevation, or "N W"
    std::string_view waves; ///< the types of waves that read it; empty for all and for none
    keyType type;
    std::string_view unit;
    std::string_view fallback; ///< the default, as the manual says it
    keyRange range;
    std::string_view meaning;
    std::string_view wrong; ///< what a wrong value does

    /// Whether the task 'N' or 'W' reads it.
    bool isReadBy(char task) const { return tasks.find(task) != tasks.npos; }
    /// The name for a body, the value of bem.body.
    std::string nameFor(std::string_view body) const;
};

/// All keys, in the order of the manual. Those that mean something else for another type of waves
/// are there once for each.
const std::vector<inputKey>& keyTable();

/// The key that has this name for some body, or nullptr.
const inputKey* findKey(std::string_view name);

/// The row of a key in the manual's table, in Markdown. A key that has the name of the `former`
/// row is shown without it.
std::string manualRow(const inputKey& key, std::string_view former);

} // namespace sorvik
