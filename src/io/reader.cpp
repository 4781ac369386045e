#include "io/reader.hpp"

#include "base/files.hpp"
#include "io/printer.hpp"
#include "io/sorvikIO.hpp"

#include <initializer_list>
#include <iostream>

int reader::binaryOutput = 1;

namespace {

/// What `getFlag` gives for a flag without a value.
const std::string noValue = "FOUND";

/// Takes the value of the first of the flags that is present; false where none is.
bool firstFlag(std::initializer_list<const char*> flags, int argc, const char** argv,
               std::string& value) {
    for (const char* flag : flags) {
        if (reader::getFlag(flag, argc, argv, value) >= 0) {
            return true;
        }
    }
    return false;
}

[[noreturn]] void refuseFile(const std::string& name) {
    printer::fatalError("Cannot find or open file: " + name);
}

/// The output folder that the input file asks for when the program is run through its interface.
bool folderFromInput(const std::string& inputName, std::string& folder) {
    const inputMap inputs(inputName);
    const auto entry = inputs.map.find("simulation.API.output");
    if (entry == inputs.map.end()) {
        return false; // uncovered: old results without a folder
    }
    folder = entry->second;
    return true;
}

/// The folder of old results, `fallback` where none is named or it cannot be read.
std::string findOldResults(int argc, const char** argv, const std::string& fallback, bool& found) {
    std::string folder = fallback;
    const bool named = firstFlag({"-results", "-r", "-startState"}, argc, argv, folder);
    if (folder == noValue) {
        folder = fallback; // uncovered: -r without a value
    }
    found = named && reader::fileExist(folder + "/setup.txt", false);
    if (named && !found) {
        std::cout << " WARNING: OLD RESULTS " << folder << " WERE NOT FOUND OR COULD NOT BE OPENED."
                  << std::endl;
        folder = fallback;
    }
    return folder;
}

} // namespace

void reader::setupReadOnly(int argc, const char** argv) {
    fileConfiguration(argc, argv);
    if (!inputs.readFile(inputFile)) {
        refuseFile(inputFile);
    }
}

void reader::fileConfiguration(int argc, const char** argv) {
    std::string name = defaultInputFile;
    const bool inputGiven = firstFlag({"-f", "-i"}, argc, argv, name);
    if (name == noValue) {
        printer::fatalError(
            "Filename flag -f | -i was found but it is not followed by a recognized value. Please "
            "specify a filename. Usage: sorvik.x -f <yourFileName> ");
    }

    bool outputGiven = firstFlag({"-output", "-o"}, argc, argv, outputFolder);
    int position = argc;
    if (findFlag("-API", argc, argv, position)) {
        outputGiven = folderFromInput(name, outputFolder);
    }
    if (outputFolder == noValue) {
        printer::fatalError(
            "Output flag -output | -o  was found but it was not followed by a recognized value. "
            "Please specify a foldername. Usage: sorvik.x -f <yourFileName> -o <outName>");
    }
    if (inputGiven && !outputGiven) {
        outputFolder = removeExtension(name);
    }

    oldResultsFolder = findOldResults(argc, argv, outputFolder, oldResultsFound);
    if (oldResultsFound && !inputGiven) {
        inputFile = oldResultsFolder + "/setup.json";
        fileExist(inputFile, true);
        return;
    }
    if (!inputGiven) {
        printer::fatalError("No input file or old results were found. Specify -f <filename> or -r "
                            "<oldResults> to run.");
    }
    inputFile = name;
}

template <>
std::string reader::mustRead<std::string>(const std::string& key,
                                          const std::string& alternative) const {
    auto entry = inputs.map.find(key);
    if (entry == inputs.map.end() && !alternative.empty()) {
        entry = inputs.map.find(alternative);
    }
    if (entry == inputs.map.end()) {
        printer::fatalNotFound(key, "");
    }
    return entry->second;
}

template <>
std::vector<double> reader::mustRead<std::vector<double>>(const std::string& key,
                                                          const std::string& alternative) const {
    std::vector<double> values;
    sorvikIO::parse<double>(mustRead<std::string>(key, alternative), values);
    return values;
}

bool reader::findFlag(const std::string& flag, int argc, const char** argv, int& position) {
    for (int i = 0; i < argc; ++i) {
        if (flag == argv[i]) {
            position = i;
            return true;
        }
    }
    return false;
}

int reader::getFlag(const std::string& flag, int argc, const char** argv, std::string& value) {
    int position = argc;
    if (!findFlag(flag, argc, argv, position)) {
        return -1;
    }
    const bool hasValue = position + 1 < argc && argv[position + 1][0] != '-';
    value = hasValue ? argv[position + 1] : noValue;
    return position;
}

bool reader::fileExist(const std::string& name, bool mustExist) {
    const bool found = sorvik::files::canOpen(name);
    if (!found && mustExist) {
        refuseFile(name);
    }
    return found;
}

void reader::makeFolder(const std::string& path) {
    if (!sorvik::files::makeFolder(path)) {
        printer::fatalError("The folder " + path +
                            " was not created properly. \n\t Sorvik only creates the final layer "
                            "of the folder tree. Please make sure that the parent directory "
                            "exists, and check permissions.");
    }
}

std::string reader::removeExtension(const std::string& name) {
    return sorvik::files::withoutExtension(name);
}
