// Values that the tasks read otherwise than they look: a number is what a stream takes for one, and
// what follows it is ignored.
#include "base/classicText.hpp"
#include "base/excerpt.hpp"
#include "base/numberText.hpp"
#include "check/inputCase.hpp"
#include "check/keyTable.hpp"
#include "io/sorvikIO.hpp"

namespace sorvik {
namespace {

/// What a stream makes of the beginning of a text.
template <class T>
struct numberRead {
    explicit numberRead(const std::string& text) {
        classicText in(text);
        in >> value;
        isNumber = !in.fail();
        isTooLarge = !isNumber && value != T(0);
        if (isNumber && !in.eof()) {
            rest = text.substr(static_cast<std::size_t>(in.tellg()));
        }
    }
    T value{};
    bool isNumber = false;
    bool isTooLarge = false;
    std::string rest;
};

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isBlank(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") == text.npos;
}

/// Whether a text begins with a digit, a sign and a point apart.
bool beginsAsNumber(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    const std::size_t digit = first == text.npos ? first : text.find_first_not_of("+-.", first);
    return digit != text.npos && digit - first <= 2 && isDigit(text[digit]);
}

/// Whether two digits have a comma between them.
bool hasDecimalComma(std::string_view raw) {
    for (std::size_t comma = raw.find(','); comma != raw.npos; comma = raw.find(',', comma + 1)) {
        if (comma > 0 && comma + 1 < raw.size() && isDigit(raw[comma - 1]) &&
            isDigit(raw[comma + 1])) {
            return true;
        }
    }
    return false;
}

/// One value and what is known of its key.
class valueCheck {
public:
    valueCheck(const inputCase& input, const inputKey& key, std::string name, report& result)
        : input_(input), key_(key), name_(std::move(name)), text_(input.valueOf(name_)),
          result_(result) {}

    void run() {
        switch (key_.type) {
        case keyType::text: break;
        case keyType::number: checkNumber(); break;
        case keyType::integer: checkInteger(); break;
        case keyType::list:
        case keyType::point: checkList(); break;
        }
    }

private:
    finding& add(std::string_view kind, const std::string& message) {
        return addOfKey(result_, kind, input_, name_,
                        name_ + " is " + excerpt(text_) + ", " + message);
    }

    void addNoNumber(const numberRead<double>& read) {
        if (read.isTooLarge) {
            add("out-of-range", "beyond the numbers of the program.");
        } else if (beginsAsNumber(text_)) {
            add("rest-ignored", "which is no complete number and is read as 0.");
        } else {
            add("not-a-number", "which is read as 0.");
        }
    }

    void checkRest(double value, const std::string& rest) {
        const textEntry* entry = input_.entryOf(name_);
        if (isBlank(rest) || rest.find(input_.assign) != rest.npos) {
            return; // Several entries in a line are a finding of their own.
        }
        if (entry != nullptr && hasDecimalComma(contentOfLine(entry->raw))) {
            addOfKey(result_, "decimal-comma", input_, name_,
                     name_ +
                         " is written with a comma, which separates numbers like a blank, so "
                         "that " +
                         numberText(value) + " is read.");
            return;
        }
        finding& found = add("rest-ignored", "which is read as " + numberText(value) + ".");
        found.level = isBlank(rest.front()) ? severity::warning : severity::error;
    }

    void checkNumber() {
        const numberRead<double> read(text_);
        if (!read.isNumber) {
            addNoNumber(read);
            return;
        }
        checkRest(read.value, read.rest);
        checkRange(read.value);
    }

    void checkInteger() {
        const numberRead<double> meant(text_);
        const numberRead<int> read(text_);
        if (!meant.isNumber) {
            addNoNumber(meant);
            return;
        }
        if (meant.value < read.value || meant.value > read.value) {
            add("truncated-integer",
                "where an integer is expected, and is read as " + std::to_string(read.value) + ".");
            return;
        }
        checkRest(read.value, meant.rest);
        checkRange(read.value);
    }

    void checkRange(double value) {
        if (!key_.range.holds(value) && !isGravityFine(value)) {
            add("out-of-range", "expected a value " + key_.range.text() + '.').level =
                key_.range.outside;
        }
    }

    /// With waves the sign of gravity has no effect; Nemoh gets the opposite.
    bool isGravityFine(double value) const {
        return key_.name == "environment.gravity" && !input_.hasNemoh && value > 0;
    }

    void checkList() {
        classicText in(text_);
        std::size_t count = 0;
        for (; in.good(); ++count) {
            const auto place = static_cast<std::size_t>(in.tellg());
            double value = 0;
            if (!(in >> value)) {
                const bool isTooLarge = value < 0 || value > 0;
                add(isTooLarge ? "out-of-range" : "not-a-number",
                    "where " + excerpt(text_.substr(place)) + " is read as " + numberText(value) +
                        " and ends the list.");
                return;
            }
            in >> std::ws;
            in.peek();
        }
        checkCount(count);
    }

    void checkCount(std::size_t count) {
        constexpr std::size_t expected = 3;
        if (key_.type != keyType::point || count == expected) {
            return;
        }
        if (count < expected) {
            add("out-of-range", "expected 3 numbers.");
        } else {
            add("rest-ignored", "of which 3 numbers are read.").level = severity::warning;
        }
    }

    const inputCase& input_;
    const inputKey& key_;
    std::string name_;
    std::string text_;
    report& result_;
};

/// Whether the value belongs to the kind of waves of the input, or to all.
bool applies(const inputCase& input, const inputKey& key) {
    const std::string type = input.valueOf("environment.wave.type");
    const bool isOfTask = input.options.task == inputTask::both ||
                          key.isReadBy(input.options.task == inputTask::nemoh ? 'N' : 'W');
    return isOfTask && (key.waves.empty() || key.waves == type);
}

} // namespace

void checkInputValues(const inputCase& input, report& result) {
    for (const inputKey& key : keyTable()) {
        const std::string name = key.nameFor(input.body());
        if (input.has(name) && applies(input, key)) {
            valueCheck(input, key, name, result).run();
        }
    }
}

} // namespace sorvik
