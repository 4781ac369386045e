#include "waves/waveFactory.hpp"

#include "base/processEnd.hpp"
#include "io/reader.hpp"
#include "waves/Jonswap.hpp"
#include "waves/customWave.hpp"
#include "waves/regularWave.hpp"

#include <iostream>

namespace {

[[maybe_unused]] const bool isRegistryMade = waveFactory::makeRegistry();

[[noreturn]] void refuseType(const std::string& name) {
    std::cout << "FATAL ERROR: No wave model type named " << name << std::endl;
    std::cout << "Choices are: \n";
    const auto& registry = waveFactory::getRegistry();
    for (auto entry = registry.rbegin(); entry != registry.rend(); ++entry) {
        std::cout << '\t' << entry->first << '\n';
    }
    std::cout << std::flush;
    sorvik::processEnd(1);
}

} // namespace

std::map<std::string, waveFactory::maker>& waveFactory::getRegistry() {
    static std::map<std::string, maker> registry;
    return registry;
}

bool waveFactory::makeRegistry() {
    auto& registry = getRegistry();
    registry["regular"] = waveMaker<regularWave>::create;
    registry["JONSWAP"] = waveMaker<Jonswap>::create;
    registry["custom"] = waveMaker<customWave>::create;
    return true;
}

waveModel* waveFactory::create(reader& config) {
    const auto type = config.inputs.map.find("environment.wave.type");
    if (type == config.inputs.map.end()) {
        return new waveModel(config);
    }
    const auto entry = getRegistry().find(type->second);
    if (entry == getRegistry().end()) {
        refuseType(type->second);
    }
    return entry->second(config);
}
