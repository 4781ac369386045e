#include "io/entryReader.hpp"

#include "io/brackets.hpp"
#include "io/sorvikIO.hpp"

namespace sorvik {

std::string strippedText(std::string_view part) {
    std::string text(part);
    sorvikIO::strip(text);
    sorvikIO::stripFromUnwanted(text);
    return text;
}

bool beginsBlock(std::string_view value) {
    const std::size_t first = value.find_first_not_of(" \t");
    return first != std::string_view::npos && brackets::opens(value[first]);
}

bool holdsEntries(const std::string& block, char assign) {
    const std::size_t first = block.find(assign);
    return first != std::string::npos && first != block.find(":\\");
}

entryKind entryReader::next(std::string& key, std::string& value) {
    opener_ = '\0';
    isClosed_ = true;
    while (!isAtEnd_) {
        const std::size_t end = contentEnd();
        split_ = find(assign_, split_);
        if (split_ >= end) {
            moveBehind(lineEnd_);
            continue;
        }
        begin_ = position_;
        valueBegin_ = split_ + 1;
        key = strippedText(text_.substr(position_, split_ - position_));
        const std::string_view rest = text_.substr(split_ + 1, end - split_ - 1);
        if (beginsBlock(rest)) {
            value = takeBlock();
            return holdsEntries(value, assign_) ? entryKind::nested : entryKind::plain;
        }
        value = strippedText(rest);
        moveBehind(lineEnd_);
        return entryKind::plain;
    }
    return entryKind::none;
}

std::ptrdiff_t entryReader::newlinesBefore() const {
    return std::count(text_.data(), text_.data() + split_, '\n');
}

/// Where the line, or the comment in it, ends what is read of it.
std::size_t entryReader::contentEnd() {
    lineEnd_ = find('\n', lineEnd_);
    percent_ = find('%', percent_);
    hash_ = find('#', hash_);
    const std::size_t end = std::min(lineEnd_, text_.size());
    return percent_ < end ? percent_ : std::min(hash_, end);
}

/// Reads the block that follows the assignment.
std::string entryReader::takeBlock() {
    position_ = text_.find_first_not_of(" \t", split_ + 1);
    opener_ = text_[position_++];
    valueBegin_ = position_;
    const char closer = brackets::closerOf(opener_);
    return joinBlock(opener_, closer, [&](std::string& part) {
        const bool hasMore = !isAtEnd_;
        if (hasMore) {
            const std::size_t end = text_.find(closer, position_);
            part = text_.substr(position_, end - position_);
            isClosed_ = end != std::string_view::npos; // by the last part
            moveBehind(end);
        }
        return hasMore;
    });
}

} // namespace sorvik
