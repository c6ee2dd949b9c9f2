#pragma once

#include <QList>

#include "media/PresetRow.h"

struct VideoDetail;

// Which of the sizes offered for a video is chosen. A file row keeps no choice of its own: it
// reads the choice back from the file's details each time it shows the file, and a file that has
// none yet gets the first size offered.
class PresetSelection {
public:
    struct Result {
        QList<PresetRow> rows;
        qsizetype selectedIndex = 0;
    };

    // The position of the row as wide as the chosen width (the last such row wins); the first
    // row for a file that is neither configured nor marked "Do Not Encode", and when nothing
    // matches.
    static qsizetype selectedIndex(const QList<PresetRow>& rows, const VideoDetail& detail);

    // Offers the sizes for the detail's frame size and writes the selected row's width and
    // bitrates back into it (width 0 and no bitrates when there is no row). Whether the file is
    // encoded at all is left as it was.
    static Result reload(VideoDetail& detail, bool hasDoNotEncode);
};
