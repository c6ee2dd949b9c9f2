#include "model/NumberScanner.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace {

bool isAsciiDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

bool isSign(QChar c) { return c == QLatin1Char('+') || c == QLatin1Char('-'); }

// from_chars is locale-independent, unlike strtod, which matters once Qt has set the user's
// locale; it only refuses a leading "+", so that is dropped here.
double convertReal(QStringView lexeme) {
    std::string ascii = lexeme.toLatin1().toStdString();
    if (!ascii.empty() && ascii.front() == '+') {
        ascii.erase(0, 1);
    }
    double value = 0;
    const std::from_chars_result result =
        std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Too large or too small to represent: saturate like strtod does.
        const bool negative = !ascii.empty() && ascii.front() == '-';
        const bool tiny =
            ascii.find("e-") != std::string::npos || ascii.find("E-") != std::string::npos;
        const double magnitude = tiny ? 0.0 : HUGE_VAL;
        return negative ? -magnitude : magnitude;
    }
    return value;
}

}  // namespace

std::optional<double> NumberScanner::scanDouble() {
    const qsizetype start = skipWhitespace(location_);
    const qsizetype integerStart = skipSign(start);
    qsizetype pos = skipDigits(integerStart);
    qsizetype digitCount = pos - integerStart;
    if (pos < text_.size() && text_[pos] == QLatin1Char('.')) {
        const qsizetype fractionStart = pos + 1;
        pos = skipDigits(fractionStart);
        digitCount += pos - fractionStart;
    }
    if (digitCount == 0) {
        return std::nullopt;
    }
    pos = skipExponent(pos);
    location_ = pos;
    return convertReal(text_.sliced(start, pos - start));
}

std::optional<qint32> NumberScanner::scanInt() {
    const qsizetype start = skipWhitespace(location_);
    const qsizetype digitsStart = skipSign(start);
    const qsizetype end = skipDigits(digitsStart);
    if (end == digitsStart) {
        return std::nullopt;
    }
    const bool negative = text_[start] == QLatin1Char('-');
    constexpr qint64 lowest = std::numeric_limits<qint32>::min();
    constexpr qint64 highest = std::numeric_limits<qint32>::max();
    qint64 magnitude = 0;
    // Stops once past the limits, so that long digit runs can't overflow the accumulator.
    for (qsizetype i = digitsStart; i < end && magnitude <= highest + 1; ++i) {
        magnitude = magnitude * 10 + text_[i].digitValue();
    }
    location_ = end;
    return static_cast<qint32>(std::clamp(negative ? -magnitude : magnitude, lowest, highest));
}

bool NumberScanner::isAtEnd() const { return skipWhitespace(location_) == text_.size(); }

qint32 NumberScanner::intValue(QStringView text) {
    return NumberScanner(text).scanInt().value_or(0);
}

double NumberScanner::doubleValue(QStringView text) {
    return NumberScanner(text).scanDouble().value_or(0.0);
}

qsizetype NumberScanner::skipWhitespace(qsizetype from) const {
    while (from < text_.size() && text_[from].isSpace()) {
        ++from;
    }
    return from;
}

qsizetype NumberScanner::skipDigits(qsizetype from) const {
    while (from < text_.size() && isAsciiDigit(text_[from])) {
        ++from;
    }
    return from;
}

qsizetype NumberScanner::skipSign(qsizetype from) const {
    return from < text_.size() && isSign(text_[from]) ? from + 1 : from;
}

// An "e" belongs to the number only when digits follow it: "1e" is the number 1 and a letter.
qsizetype NumberScanner::skipExponent(qsizetype from) const {
    if (from >= text_.size() ||
        (text_[from] != QLatin1Char('e') && text_[from] != QLatin1Char('E'))) {
        return from;
    }
    const qsizetype digitsStart = skipSign(from + 1);
    const qsizetype end = skipDigits(digitsStart);
    return end == digitsStart ? from : end;
}
