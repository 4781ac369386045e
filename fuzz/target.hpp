#pragma once

#include "base/processEnd.hpp"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>

/// Stops the program where `condition` does not hold, in every kind of build.
inline void check(bool condition) {
    if (!condition) {
        __builtin_trap();
    }
}

/// The path of `name` in a folder of this process, which lies in memory where TMPDIR does.
inline std::string pathOf(const std::string& name) {
    static const struct temporaryFolder {
        std::string path = (std::filesystem::temp_directory_path() /
                            ("sorvikFuzz." + std::to_string(std::random_device()())))
                               .string();
        temporaryFolder() { check(std::filesystem::create_directory(path)); }
        ~temporaryFolder() { std::filesystem::remove_all(path); }
    } folder;
    return folder.path + "/" + name;
}

inline std::string fileOf(const std::string& name, const std::string& content) {
    std::ofstream(pathOf(name), std::ios::binary) << content;
    return pathOf(name);
}

/// What the program has printed.
inline std::stringbuf& output() {
    static auto& text = *new std::stringbuf;
    return text;
}

/// Whether `run` comes to its end: a fatal error is an outcome like any other.
template <class Run>
bool ends(Run run) {
    try {
        run();
    } catch (const sorvik::processEnded&) {
        return false;
    }
    return true;
}

/// Reads `text` and checks the outcome.
void tryText(const std::string& text);

extern "C" [[gnu::used]] inline int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                                           std::size_t size) {
    output().str("");
    std::cout.rdbuf(&output());
    sorvik::setEndHandler(sorvik::throwProcessEnd);
    ends([&] { tryText({reinterpret_cast<const char*>(data), size}); });
    return 0;
}
