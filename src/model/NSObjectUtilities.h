#pragma once

#include <QString>

class NSObjectUtilities {
public:
    // True for a null text and for an empty one alike.
    static bool isEmptyString(const QString& text);
};
