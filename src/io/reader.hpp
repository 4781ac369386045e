#pragma once

#include "io/inputMap.hpp"

#include <string>
#include <vector>

/// The configuration of one run, from the command line and the input file.
///
/// Errors in it are fatal, except that missing old results are a warning.
class reader {
public:
    /// The input file that is meant where no flag names one.
    std::string defaultInputFile = "sorvikInput.m";
    /// The input file that is read.
    std::string inputFile;
    /// Where results are written.
    std::string outputFolder = "sorvikResults";
    /// Where results of an earlier run are; the output folder unless `oldResultsFound`.
    std::string oldResultsFolder;
    /// Whether a flag asked for old results that are there.
    bool oldResultsFound = false;
    /// The entries of `inputFile`.
    inputMap inputs;

    /// Whether result files are binary (1) or text (0).
    static int binaryOutput;

    /// Settles the names with `fileConfiguration` and reads the input file, which must be there.
    /// Writes nothing.
    void setupReadOnly(int argc, const char** argv);

    /// Settles input file (-f, -i), output folder (-output, -o, with -API "simulation.API.output")
    /// and old results (-results, -r, -startState). Without an output flag the folder is named
    /// after the input file; without an input file, old results must bring their "setup.json". An
    /// input file that is given wins over that of old results.
    void fileConfiguration(int argc, const char** argv);

    /// The value of `key`, or of `alternative` where `key` is missing: its text, or a list of
    /// doubles. A value that is missing under both names is fatal.
    template <class T>
    T mustRead(const std::string& key, const std::string& alternative = "") const;

    /// Finds the first argument that equals `flag`, argv[0] included, and stores its index in
    /// `position`, which stays untouched where there is none.
    static bool findFlag(const std::string& flag, int argc, const char** argv, int& position);

    /// Returns the index of the first argument that equals `flag`, or -1. `value` receives the
    /// argument after it, or "FOUND" where that is missing or begins with '-', as a negative number
    /// does; it stays untouched where there is no such flag.
    static int getFlag(const std::string& flag, int argc, const char** argv, std::string& value);

    /// Whether the file can be opened for reading; if not, and it must exist, that is fatal.
    static bool fileExist(const std::string& name, bool mustExist);

    /// Makes the last folder of `path`, unless it is there, and tries whether files can be written
    /// into it; otherwise that is fatal. Trying leaves no file and changes none.
    static void makeFolder(const std::string& path);

    /// The name without its last extension. Dots in the names of folders do not count.
    static std::string removeExtension(const std::string& name);
};

/// The text of the value, unchanged.
template <>
std::string reader::mustRead<std::string>(const std::string& key,
                                          const std::string& alternative) const;
/// The numbers of the value, as `sorvikIO::parse` reads them.
template <>
std::vector<double> reader::mustRead<std::vector<double>>(const std::string& key,
                                                          const std::string& alternative) const;
