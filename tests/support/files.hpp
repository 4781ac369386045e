#pragma once

#include <string>

/// A new folder for one test, removed with all that is in it.
class temporaryFolder {
public:
    temporaryFolder();
    ~temporaryFolder();
    temporaryFolder(const temporaryFolder&) = delete;
    temporaryFolder& operator=(const temporaryFolder&) = delete;

    /// The path of `name` in the folder; of the folder itself without a name.
    std::string path(const std::string& name = "") const;

private:
    std::string folder_;
};

/// Writes the bytes, and returns the path.
std::string writeFile(const std::string& path, const std::string& content);

/// The bytes of a file; a failed test and an empty text where it cannot be read.
std::string readFile(const std::string& path);
