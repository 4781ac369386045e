#pragma once

#include "base/processEnd.hpp"

#include <iostream>
#include <sstream>
#include <streambuf>
#include <string>

namespace sorvik {

/// What an action of the library did, which was run by `quietly`.
struct quietOutcome {
    bool hasEnded = false; ///< whether it was to end the process
    int status = 0;        ///< that the process was to end with
    std::string text;      ///< what it printed on standard output

    /// The fatal error that the text shows, in one line and without its frame, or else the last
    /// line.
    std::string message() const;
};

/// Takes what is printed on standard output, and the ends of the process, for its own lifetime.
class outputCapture {
public:
    outputCapture()
        : formerBuffer_(std::cout.rdbuf(text_.rdbuf())),
          formerHandler_(setEndHandler(throwProcessEnd)) {}
    outputCapture(const outputCapture&) = delete;
    outputCapture& operator=(const outputCapture&) = delete;
    ~outputCapture() {
        setEndHandler(formerHandler_);
        std::cout.rdbuf(formerBuffer_);
    }

    std::string text() const { return text_.str(); }

private:
    std::ostringstream text_;
    std::streambuf* formerBuffer_;
    endHandler formerHandler_;
};

/// Runs an action of the library, which then prints nothing and never ends the process.
template <class Action>
quietOutcome quietly(Action action) {
    quietOutcome outcome;
    const outputCapture capture;
    try {
        action();
    } catch (const processEnded& end) {
        outcome.hasEnded = true;
        outcome.status = end.status;
    }
    outcome.text = capture.text();
    return outcome;
}

} // namespace sorvik
