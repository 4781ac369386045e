#pragma once

#include "base/sixDigits.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <memory>
#include <ostream>
#include <string_view>

namespace sorvik {

/// Writes text and numbers to a stream through one large block. Numbers are those of the default
/// stream format in the classic locale.
///
/// What does not reach the stream shows in the stream's own state.
class textWriter {
public:
    /// The stream must outlive the writer.
    explicit textWriter(std::ostream& target) : out_(target), block_(new char[size]) {}
    textWriter(const textWriter&) = delete;
    textWriter& operator=(const textWriter&) = delete;
    ~textWriter() { flush(); }

    textWriter& operator<<(double value) {
        reserve(sixDigits::room);
        end_ = sixDigits::write(end_, value);
        return *this;
    }

    textWriter& operator<<(float value) { return *this << static_cast<double>(value); }

    textWriter& operator<<(int value) {
        constexpr std::size_t maxLength = 11;
        reserve(maxLength);
        end_ = std::to_chars(end_, end_ + maxLength, value).ptr;
        return *this;
    }

    textWriter& operator<<(char c) {
        reserve(1);
        *end_++ = c;
        return *this;
    }

    /// `text` is shorter than the block.
    textWriter& operator<<(std::string_view text) {
        reserve(text.size());
        std::memcpy(end_, text.data(), text.size());
        end_ += text.size();
        return *this;
    }

    /// Writes a tab and factor * value for each of `count` values until one is in doubt, that is
    /// until not every number within `bound` of it has the same text. Returns how many were
    /// written.
    std::size_t writeColumns(const double* values, std::size_t count, double factor, double bound) {
        constexpr std::size_t run = 1024;
        std::size_t written = 0;
        while (written < count) {
            const std::size_t next = std::min(run, count - written);
            reserve(next * (1 + sixDigits::room));
            const std::size_t certain =
                sixDigits::writeColumns(end_, values + written, next, factor, bound);
            written += certain;
            if (certain < next) {
                break;
            }
        }
        return written;
    }

    /// Hands what is in the block to the stream.
    void flush() {
        out_.write(block_.get(), end_ - block_.get());
        end_ = block_.get();
    }

private:
    static constexpr std::size_t size = std::size_t(1) << 18;

    void reserve(std::size_t count) {
        if (count > size - static_cast<std::size_t>(end_ - block_.get())) {
            flush();
        }
    }

    std::ostream& out_;
    std::unique_ptr<char[]> block_;
    char* end_ = block_.get();
};

} // namespace sorvik
