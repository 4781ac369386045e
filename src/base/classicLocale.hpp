#pragma once

#include <ios>
#include <locale>

namespace sorvik {

/// Gives a stream that someone else owns the classic locale, and its own back in the end: the text
/// of numbers follows no host.
class classicLocale {
public:
    /// The stream must outlive the object.
    explicit classicLocale(std::ios& stream)
        : stream_(stream), before_(stream.imbue(std::locale::classic())) {}
    ~classicLocale() { stream_.imbue(before_); }
    classicLocale(const classicLocale&) = delete;
    classicLocale& operator=(const classicLocale&) = delete;

private:
    std::ios& stream_;
    std::locale before_;
};

} // namespace sorvik
