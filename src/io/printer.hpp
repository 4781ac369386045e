#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// The program's console output: fatal errors, labelled matrices, lines of a time series, progress.
///
/// Everything goes to standard output. The fatal members end the process with status 1 right after
/// their last line: no destructors run, and partly written files stay as they are.
class printer {
public:
    /// Bytes per double in binary result files.
    static int m_dblSize;

    /// Prints `message` in the fatal-error frame and ends the process with status 1.
    [[noreturn]] static void fatalError(const std::string& message);
    /// The same without asking for memory.
    [[noreturn]] static void fatalError(const char* message);

    /// Reports that `key` has no value in the input file and ends the process with status 1.
    /// A `format` that is not empty is shown as the expected input.
    [[noreturn]] static void fatalNotFound(const std::string& key, const std::string& format);

    /// Returns if `found` equals `expected`; otherwise reports the length of the vector that was
    /// given for the input `name` and ends the process with status 1.
    static void fatalCheckSize(int found, int expected, const std::string& name);

    /// Prints a rows x cols matrix, row-major, between a header and a footer of its width.
    static void printMatrix(const int& rows, const int& cols, const double* data,
                            const std::string& title);
    /// The same of a vector.
    static void printMatrix(const int& rows, const int& cols, const std::vector<double>& data,
                            const std::string& title);
    /// The same of texts, each before two blanks.
    static void printMatrix(const int& rows, const int& cols, const std::vector<std::string>& cells,
                            const std::string& title);

    /// Writes the rows of a row-major matrix to `os`, every value after a tab, in the number format
    /// of the stream, but in the classic locale. Nothing for `rows` below 1.
    static void printMatrix(std::ostream& os, const int& rows, const int& cols, const double* data);
    /// The same of a vector.
    static void printMatrix(std::ostream& os, const int& rows, const int& cols,
                            const std::vector<double>& data);

    /// Writes one line of a time series: `first`, then `n` values times `scale`, tab-separated, in
    /// the classic locale. Returns `os`.
    static std::ostream& printLine(std::ostream& os, const int& n, const double& first,
                                   const double& scale, const double* values);

    /// Writes `n` doubles as they are in memory, `m_dblSize` bytes each; nothing for `n` below 1.
    static void writeDoubles(std::ostream& os, int n, const double* values);

    /// Redraws a bar of 50 characters when it has grown beyond `shown`, the length reached so far,
    /// which the caller owns and starts at 0. A bar of length 50 ends its line at every call.
    ///
    /// A share that is negative or not finite (NaN, infinities, a total of zero) draws nothing; one
    /// above 1 draws a full bar, a percentage above 100, and no end of line.
    static void showProgress(const double& done, const double& total, int& shown);
};
