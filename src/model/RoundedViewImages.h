#pragma once

#include <QStringList>

// The images a drawn panel is made of, by its type (0-18): a left cap, a stretched centre and a
// right cap; type 2 is a nine-part image instead. Every other type draws nothing.
class RoundedViewImages {
public:
    static constexpr int kNinePartType = 2;

    // Left, centre, right; for the nine-part type the corners, edges and centre row by row from
    // the top left. Empty for a type without images.
    static QStringList imagesForType(int type);
};
