#pragma once

#include <QString>
#include <stdexcept>

// Thrown for a hex colour text of the wrong length. Every caller passes a constant, so this
// marks a programming error and is not meant to be caught in normal operation.
class InvalidColorValueException : public std::invalid_argument {
public:
    explicit InvalidColorValueException(const QString& hexString);

    QString name() const { return QStringLiteral("Invalid color value"); }
    // The text as it was passed in.
    const QString& hexString() const { return hexString_; }

private:
    QString hexString_;
};
