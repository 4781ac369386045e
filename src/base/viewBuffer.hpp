#pragma once

#include <streambuf>
#include <string_view>

namespace sorvik {

/// A read-only stream buffer over text that someone else owns, so that reading a part of a text as
/// a stream copies nothing. The text must outlive the buffer.
class viewBuffer : public std::streambuf {
public:
    explicit viewBuffer(std::string_view text) {
        // The get area is never written to: a stream buffer without pbackfail only reads.
        char* begin = const_cast<char*>(text.data());
        setg(begin, begin, begin + text.size());
    }

protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir from,
                     std::ios_base::openmode which) override {
        const off_type base = from == std::ios_base::beg   ? 0
                              : from == std::ios_base::cur ? gptr() - eback()
                                                           : egptr() - eback();
        // uncovered: a seek that no reader makes
        return seekpos(base + offset, which);
    }

    pos_type seekpos(pos_type position, std::ios_base::openmode which) override {
        const off_type offset = position;
        if ((which & std::ios_base::in) == 0 || offset < 0 || offset > egptr() - eback()) {
            return off_type(-1); // uncovered: a seek that no reader makes
        }
        setg(eback(), eback() + offset, egptr());
        return position;
    }
};

} // namespace sorvik
