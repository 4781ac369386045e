#include "waves/waveFile.hpp"

#include "io/sorvikIO.hpp"
#include "target.hpp"
#include "waves/customWave.hpp"

#include <algorithm>

void tryText(const std::string& text) {
    customWave wave;
    std::istringstream blocks(text);
    for (sorvik::waveBlock block; sorvik::readWaveBlock(blocks, "wave", block);) {
        wave.addWaveTrain(block.direction, block.amplitudes, block.frequencies, block.phases, true);
    }
    // Rows that are missing or differ in length have ended the run.
    std::string plain = text;
    std::replace_if(plain.begin(), plain.end(), sorvikIO::checkUnwanted, ' ');
    std::istringstream in(plain);
    std::size_t trains = 0;
    for (double direction = 0; in >> direction >> std::ws; ++trains) {
        const waveTrain& train = wave.trains().at(trains);
        for (const auto value : {&waveComponent2D::amplitude, &waveComponent2D::angularFrequency,
                                 &waveComponent2D::phase}) {
            std::string line;
            std::getline(in, line);
            std::istringstream row(line);
            for (const waveComponent2D& component : train.components()) {
                double expected = 0;
                row >> expected >> std::ws;
                check((component.*value)() == expected);
            }
            check(!row.good());
        }
    }
    check(trains == wave.trains().size());
    const double place = 3;
    double elevation = 0;
    wave.eta(1, &place, &place, &elevation);
}
