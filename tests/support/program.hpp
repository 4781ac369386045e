#pragma once

#include "base/processEnd.hpp"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

/// How a run of the program ended.
struct programRun {
    int status;         ///< as `statusOf` gives it
    std::string output; ///< standard output
    std::string errors; ///< standard error, to which the program never writes
};

/// Runs sorvikPre in `folder` (the current one without a name). Arguments hold nothing that is
/// special to a shell between double quotes.
programRun runProgram(const std::vector<std::string>& arguments, const std::string& folder = "");

/// What `action` prints to standard output.
template <class Action>
std::string outputOf(Action action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

/// How `action` ends the process, were it not for the test; the status is -999 where it does not.
template <class Action>
programRun endOf(Action action) {
    programRun end{-999, "", ""};
    const auto before = sorvik::setEndHandler(sorvik::throwProcessEnd);
    end.output = outputOf([&] {
        try {
            action();
        } catch (const sorvik::processEnded& ended) {
            end.status = ended.status;
        }
    });
    sorvik::setEndHandler(before);
    return end;
}

/// Expects that `statement` ends the process with the status `code` and says `words` literally.
#define EXPECT_END_SAYING(statement, code, words)                                                  \
    do {                                                                                           \
        const programRun end = endOf([&] { statement; });                                          \
        EXPECT_EQ(end.status, code);                                                               \
        EXPECT_THAT(end.output, testing::HasSubstr(words));                                        \
    } while (false)
