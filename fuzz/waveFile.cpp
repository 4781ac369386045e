#include "waves/waveFile.hpp"

#include "target.hpp"
#include "waves/customWave.hpp"

void tryText(const std::string& text) {
    customWave wave;
    std::size_t components = 0;
    std::istringstream blocks(text);
    for (sorvik::waveBlock block; sorvik::readWaveBlock(blocks, "wave", block);) {
        wave.addWaveTrain(block.direction, block.amplitudes, block.frequencies, block.phases, true);
        components += block.phases.size();
    }
    // Rows that are missing or differ in length have ended the run.
    for (const waveTrain& train : wave.trains()) {
        components -= train.components().size();
    }
    check(components == 0);
    const double place = 3;
    double elevation = 0;
    wave.eta(1, &place, &place, &elevation);
}
