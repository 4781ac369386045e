#include "check/seaCheck.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/rewrite.hpp"
#include "base/textWriter.hpp"
#include "check/quietly.hpp"
#include "check/seaFacts.hpp"
#include "check/spectrumCheck.hpp"
#include "check/tableCheck.hpp"
#include "check/waveFileCheck.hpp"
#include "io/reader.hpp"
#include "waves/Jonswap.hpp"
#include "waves/environment.hpp"
#include "waves/globals.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveFactory.hpp"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace sorvik {

namespace {

/// A sea and the instants of its table.
struct seaRun {
    reader config;
    std::unique_ptr<waveModel> sea;
    std::optional<timeInstants> instants;
    std::vector<seaComponent> components;
    seaFacts facts;

    bool isSpectrum() const {
        constexpr std::size_t manyComponents = 20; // more than anybody lists for their own sake
        return dynamic_cast<const Jonswap*>(sea.get()) != nullptr ||
               facts.components >= manyComponents;
    }
    double first() const { return (*instants)[0]; }
    double last() const { return (*instants)[instants->count() - 1]; }
    bool hasInstants() const { return instants->count() > 0; }
    /// The time at full height [s].
    double duration() const {
        return hasInstants() ? std::max(last() - std::max(first(), sea->rampTime()), 0.0) : 0;
    }
};

void addFact(report& result, const char* name, const char* label, double value,
             const char* unit = "") {
    if (std::isfinite(value)) {
        result.addFact(name, label, value, unit);
    }
}

void addSeaFacts(report& result, const seaRun& run) {
    const seaFacts& facts = run.facts;
    result.addFact("trains", "Wave trains", static_cast<long long>(run.sea->trains().size()));
    result.addFact("components", "Components", static_cast<long long>(facts.components));
    result.addFact("componentsOf90Percent", "With 90 % of the energy",
                   static_cast<long long>(facts.componentsOf90Percent));
    result.addFact("depth", "Depth", run.sea->depth(), "m");
    if (facts.components == 1) {
        result.addFact("height", "Wave height", 2 * facts.largestCrest, "m");
    }
    result.addFact("Hs.table", "Significant height", facts.height, "m");
    addFact(result, "Tp", "Peak period", facts.peakPeriod, "s");
    addFact(result, "T01", "Mean period T01", facts.T01, "s");
    addFact(result, "T02", "Crossing period T02", facts.T02, "s");
    addFact(result, "Te", "Energy period Te", facts.Te, "s");
    addFact(result, "direction", "Mean direction", facts.direction, "degrees");
    addFact(result, "spread", run.sea->trains().size() > 1 ? "Spread" : "", facts.spread,
            "degrees");
    addFact(result, "largestCrest", "Largest crest", facts.largestCrest, "m");
    addFact(result, "steepness", "Steepness", facts.steepness);
    if (std::isfinite(facts.greatestKh)) {
        result.addFact("kh", "k h", std::vector<double>{facts.leastKh, facts.greatestKh});
    }
    addFact(result, "repeatPeriod", "Repeats itself after", facts.repeatPeriod, "s");
    addFact(result, "groupPeriod", std::isfinite(facts.repeatPeriod) ? "" : "Groups repeat after",
            facts.groupPeriod, "s");
    addFact(result, "shortestPeriod", "Shortest period", facts.shortestPeriod, "s");
    addFact(result, "longestPeriod", "Longest period", facts.longestPeriod, "s");
}

void addTimeFacts(report& result, const seaRun& run) {
    result.addFact("instants", "Instants", static_cast<long long>(run.instants->count()));
    if (run.instants->isEven()) {
        result.addFact("step", "Time step", run.instants->step(), "s");
    }
    result.addFact("duration", "Time at full height", run.duration(), "s");
    addFact(result, "waves", "Waves in that time", std::floor(run.duration() / run.facts.T02));
}

/// Height over length from which on a wave breaks: one wave by R. Miche (1944), and 2 pi Hs/(g Tp²)
/// of a sea by DNV-RP-C205, which ends at Tp = 8 s and 15 s.
double greatestSteepness(const seaFacts& facts) {
    constexpr double miche = 0.142;
    if (facts.components == 1) {
        return miche * std::tanh(facts.peakKh);
    }
    const double share = std::clamp((facts.peakPeriod - 8) / (15 - 8), 0.0, 1.0);
    return 1.0 / 15 + share * (1.0 / 25 - 1.0 / 15);
}

void addSteepness(report& result, const seaFacts& facts) {
    const double most = greatestSteepness(facts);
    if (!(facts.steepness > most)) {
        return;
    }
    const std::string height =
        numberText(facts.components == 1 ? 2 * facts.largestCrest : facts.height);
    result.add("steep", "A height of " + height + " m with a period of " +
                            numberText(facts.peakPeriod) + " s has the steepness " +
                            numberText(facts.steepness) + "; waves break from " + numberText(most) +
                            " on.");
}

void addRepetition(report& result, const seaRun& run) {
    const seaFacts& facts = run.facts;
    const bool isWhole = facts.repeatPeriod <= facts.groupPeriod;
    const double period = isWhole ? facts.repeatPeriod : facts.groupPeriod;
    constexpr double margin = 1.001;
    if (run.duration() > margin * period) {
        const std::string what =
            isWhole ? "The sea repeats itself" : "The wave groups are the same";
        result.add("repeats", what + " after " + numberText(period) + " s, and the run has " +
                                  numberText(run.duration()) + " s at full height.");
    }
}

void addSampling(report& result, const seaRun& run) {
    const seaFacts& facts = run.facts;
    if (run.isSpectrum() && facts.hasFewComponents()) {
        result.add("few-components", std::to_string(facts.componentsOf90Percent) + " of " +
                                         std::to_string(facts.components) +
                                         " components hold 90 % of the energy.");
    } else if (run.isSpectrum()) {
        addRepetition(result, run);
    }
    constexpr double fewestSteps = 4;
    const double step = std::fabs(run.instants->step());
    if (step * fewestSteps > facts.shortestUsualPeriod) {
        result.add("coarse-step", "The time step is " + numberText(step) + " s, and waves of " +
                                      numberText(facts.shortestUsualPeriod) +
                                      " s belong to the sea.");
    }
}

void addSpectrum(report& result, const seaRun& run) {
    const auto* jonswap = dynamic_cast<const Jonswap*>(run.sea.get());
    if (jonswap == nullptr) {
        return;
    }
    const spectrumCheck check(run.config, *jonswap, run.facts, run.duration());
    check.addFacts(result);
    for (finding& each : result.findings) {
        if (each.name == "few-components" || each.name == "repeats") {
            each.cure = check.proposal();
        }
    }
    check.addFindings(result);
    result.addFact("seed", "Seed", static_cast<long long>(jonswap->usedSeed()));
}

void writeComponents(const std::string& name, const std::vector<seaComponent>& components) {
    const bool isWritten = files::write(name, [&](std::ostream& out) {
        textWriter writer(out);
        writer << "train\tdirection [deg]\ta [m]\tf [Hz]\tT [s]\tL [m]\tphase [deg]\n";
        for (const seaComponent& each : components) {
            writer << each.train << '\t' << each.direction << '\t' << each.amplitude << '\t'
                   << each.frequency << '\t' << 1 / each.frequency << '\t' << each.length << '\t'
                   << each.phase << '\n';
        }
    });
    if (!isWritten) {
        throw cannotCheck("Cannot write " + name +
                          ". Give a file in a folder that can be written.");
    }
}

void refuseInputs(const seaOptions& options, const std::vector<std::string>& inputs) {
    for (const std::string& input : inputs) {
        if (!options.components.empty() && !sharedFile(input, options.components).empty()) {
            throw cannotCheck("The components would overwrite " + input +
                              ". Give another file to --components.");
        }
    }
}

std::string waveFileOf(const reader& config) {
    const auto& entries = config.inputs.map;
    const auto type = entries.find("environment.wave.type");
    const auto file = entries.find("environment.wave.file");
    const bool isRead = type != entries.end() && type->second == "custom" && file != entries.end();
    return isRead ? file->second : "";
}

void prepare(seaRun& run, const std::string& file) {
    run.config.inputFile = file;
    run.config.outputFolder = reader::removeExtension(file);
    run.config.inputs.readFile(file);
    globals::set(run.config);
    run.sea.reset(waveFactory::create(run.config));
    run.instants = readInstants(run.config);
    run.components = componentsOf(*run.sea);
    run.facts = factsOf(run.components, run.sea->gravity());
}

} // namespace

report checkSea(const std::string& file, const seaOptions& options) {
    for (const std::string& name : {file, options.table}) {
        if (!name.empty() && !files::canOpen(name)) {
            throw cannotCheck("Cannot read " + name + ". Check the name of the file.");
        }
    }
    const environmentScope scope(environment::ofNewProcess());
    report result;
    seaRun run;
    const quietOutcome outcome = quietly([&] { prepare(run, file); });
    const std::string waveFile = waveFileOf(run.config);
    refuseInputs(options, {file, options.table, waveFile});
    if (outcome.hasEnded) {
        result.add("no-sea", outcome.message());
        return result;
    }
    addSeaFacts(result, run);
    addTimeFacts(result, run);
    if (!waveFile.empty()) {
        addLostTrains(result, waveFile);
    }
    if (run.facts.height > 0) {
        addSampling(result, run);
        addSpectrum(result, run);
        addSteepness(result, run.facts);
    } else {
        result.add("still-water", run.components.empty()
                                      ? "The input names no environment.wave.type."
                                      : "All amplitudes are zero.");
    }
    if (!options.components.empty()) {
        writeComponents(options.components, run.components);
    }
    if (!options.table.empty()) {
        addTable(result, options.table, run.facts, run.sea->rampTime());
    }
    return result;
}

} // namespace sorvik
