#include "check/elevationStatistics.hpp"

#include "base/textScanner.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace sorvik {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/// Gathers the elevations of one probe.
class probeRecord {
public:
    void add(double t, double elevation) {
        const double square = elevation * elevation;
        sum_ += elevation;
        squares_ += square;
        cubes_ += square * elevation;
        fourths_ += square * square;
        crest_ = std::max(crest_, elevation);
        trough_ = std::min(trough_, elevation);
        if (former_ < 0 && elevation >= 0) {
            cross(formerTime_ + (t - formerTime_) * former_ / (former_ - elevation));
        }
        waveCrest_ = std::max(waveCrest_, elevation);
        waveTrough_ = std::min(waveTrough_, elevation);
        former_ = elevation;
        formerTime_ = t;
    }

    probeStatistics statistics(double count) {
        probeStatistics result;
        const double mean = sum_ / count;
        const double variance = std::max(squares_ / count - mean * mean, 0.0);
        const double third = cubes_ / count - mean * (3 * variance + mean * mean);
        const double fourth =
            fourths_ / count - mean * (4 * third + mean * (6 * variance + mean * mean));
        result.mean = mean;
        result.significant = 4 * std::sqrt(variance);
        result.crest = crest_;
        result.trough = trough_;
        result.skewness = third / (variance * std::sqrt(variance));
        result.kurtosis = fourth / (variance * variance);
        addWaves(result);
        return result;
    }

private:
    void cross(double t) {
        if (crossings_++ == 0) {
            firstCrossing_ = t;
        } else {
            heights_.push_back(waveCrest_ - waveTrough_);
        }
        lastCrossing_ = t;
        waveCrest_ = waveTrough_ = 0;
    }

    void addWaves(probeStatistics& result) {
        if (heights_.empty()) {
            result.crossingPeriod = result.highestThird = result.greatestHeight = none;
            return;
        }
        const std::size_t waves = heights_.size();
        result.crossingPeriod = (lastCrossing_ - firstCrossing_) / static_cast<double>(waves);
        std::sort(heights_.begin(), heights_.end(), std::greater<>());
        result.greatestHeight = heights_.front();
        const std::size_t highest = (waves + 2) / 3;
        for (std::size_t i = 0; i < highest; ++i) {
            result.highestThird += heights_[i] / static_cast<double>(highest);
        }
    }

    double sum_ = 0;
    double squares_ = 0;
    double cubes_ = 0;
    double fourths_ = 0;
    double crest_ = -std::numeric_limits<double>::infinity();
    double trough_ = std::numeric_limits<double>::infinity();
    double former_ = 0;
    double formerTime_ = 0;
    std::size_t crossings_ = 0;
    double firstCrossing_ = 0;
    double lastCrossing_ = 0;
    double waveCrest_ = 0;
    double waveTrough_ = 0;
    std::vector<double> heights_;
};

bool isLineEnd(int c) {
    return c == '\n' || c == '\r' || c == -1;
}

/// Reads the table line by line.
class tableReader {
public:
    tableReader(std::istream& in, double start) : scanner_(in), start_(start) {}

    elevationStatistics read() {
        while (result_.fault.empty() && isLine()) {
            takeRow();
        }
        if (result_.fault.empty() && result_.instants == 0) {
            result_.fault = "no instant after time 0 and the start-up ramp";
        }
        const auto count = static_cast<double>(result_.instants);
        for (probeRecord& record : records_) {
            result_.probes.push_back(record.statistics(count));
        }
        return std::move(result_);
    }

private:
    void refuse(const std::string& fault) {
        result_.fault = fault;
        result_.faultLine = line_;
    }

    /// Whether the next line holds a row; blank lines at the end do not.
    bool isLine() {
        scanner_.skipSpace();
        ++line_;
        return scanner_.good() && scanner_.peek() != -1;
    }

    bool readNumber(double& value) {
        if (!scanner_.read(value) || !std::isfinite(value)) {
            refuse("text that is no finite number");
            return false;
        }
        return true;
    }

    void takeRow() {
        row_.clear();
        double value = 0;
        do {
            if (!readNumber(value)) {
                return;
            }
            row_.push_back(value);
        } while (!isLineEnd(scanner_.good() ? scanner_.peek() : -1));
        if (records_.empty()) {
            records_.resize(row_.size() - 1);
        }
        if (row_.size() != records_.size() + 1 || records_.empty()) {
            refuse("row of length " + std::to_string(row_.size()) + ", expected " +
                   std::to_string(std::max<std::size_t>(records_.size(), 1) + 1) +
                   ": the time and an elevation for each probe");
            return;
        }
        addRow();
    }

    void addRow() {
        const double t = row_.front();
        if (t < last_) {
            refuse("time that is before that of the line above");
            return;
        }
        last_ = t;
        if (t < start_ || t <= 0) {
            return;
        }
        if (result_.instants++ == 0) {
            first_ = t;
        }
        result_.duration = t - first_;
        for (std::size_t i = 0; i < records_.size(); ++i) {
            records_[i].add(t, row_[i + 1]);
        }
    }

    textScanner scanner_;
    double start_;
    elevationStatistics result_;
    std::vector<probeRecord> records_;
    std::vector<double> row_;
    long long line_ = 0;
    double first_ = 0;
    double last_ = -std::numeric_limits<double>::infinity();
};

} // namespace

elevationStatistics readElevations(std::istream& in, double start) {
    return tableReader(in, start).read();
}

} // namespace sorvik
