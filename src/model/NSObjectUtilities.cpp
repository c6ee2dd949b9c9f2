#include "model/NSObjectUtilities.h"

bool NSObjectUtilities::isEmptyString(const QString& text) { return text.isEmpty(); }
