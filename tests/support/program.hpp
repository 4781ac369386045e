#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// How a run of the program ended.
struct programRun {
    int status;         ///< as `statusOf` gives it
    std::string output; ///< standard output
    std::string errors; ///< standard error, to which the program never writes
};

/// Runs sorvikPre in `folder` (the current one without a name). Arguments hold nothing that is
/// special to a shell between double quotes.
programRun runProgram(const std::vector<std::string>& arguments, const std::string& folder = "");

/// Runs `statement` in a process of its own and expects it to end with `status` and with an output
/// that contains `text` literally.
#define EXPECT_EXIT_SAYING(statement, status, text)                                                \
    EXPECT_EXIT(                                                                                   \
        {                                                                                          \
            showOutputAsError();                                                                   \
            statement;                                                                             \
        },                                                                                         \
        [&](int result) { return statusOf(result) == (status); }, testing::HasSubstr(text))

/// The status of a process that ended with `result`, as the system gives it: 128 + n for signal n.
int statusOf(int result);

/// Sends standard output to standard error, where death tests look.
void showOutputAsError();

/// What `action` prints to standard output.
template <class Action>
std::string outputOf(Action action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}
