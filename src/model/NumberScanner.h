#pragma once

#include <QStringView>
#include <QtGlobal>
#include <optional>

// Reads numbers off the front of a text the way the service's and the probe's numeric strings
// are meant: white space and line breaks before a number are skipped, a failed scan leaves the
// position where it was, and integers saturate at the int32 limits instead of wrapping.
// Decimal points are always ".", whatever the user's locale says.
class NumberScanner {
public:
    // The text must outlive the scanner.
    explicit NumberScanner(QStringView text) : text_(text) {}

    // A real: optional sign, digits with an optional fraction, optional exponent.
    std::optional<double> scanDouble();
    // An integer: optional sign and decimal digits.
    std::optional<qint32> scanInt();
    // True when nothing but white space and line breaks is left.
    bool isAtEnd() const;
    qsizetype location() const { return location_; }

    // The leading integer of a text, 0 when it has none (" 3.5 " gives 3, "1e3" gives 1).
    static qint32 intValue(QStringView text);
    // The leading real of a text, 0 when it has none ("1e3" gives 1000, "1.5 2" gives 1.5).
    static double doubleValue(QStringView text);

private:
    qsizetype skipWhitespace(qsizetype from) const;
    qsizetype skipDigits(qsizetype from) const;
    qsizetype skipSign(qsizetype from) const;
    qsizetype skipExponent(qsizetype from) const;

    QStringView text_;
    qsizetype location_ = 0;
};
