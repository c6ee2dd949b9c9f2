#pragma once

#include <QRectF>

// Where a row of the file list puts its pieces. Rows lay out from their top left corner, as
// table cells do: the name with the clip's details beside it on the first line, then at the
// right the preserve-original checkbox (upload screens), the size popup with the expected size
// under it, and the remove button.
class FileRowLayout {
public:
    static constexpr qreal kRowHeight = 50;
    // With the preserve-original checkbox, a video's name is given this width.
    static constexpr qreal kNameWidthBesideCheckbox = 140;

    struct Input {
        qreal rowWidth = 0;
        qreal nameTextWidth = 0;
        qreal detailTextWidth = 0;
        bool showsPopup = false;
        // Only ever for a video; its name then gets the fixed width.
        bool showsCheckbox = false;
    };

    struct Frames {
        QRectF name;
        QRectF detail;
        QRectF popup;
        QRectF sizeBand;
        QRectF checkbox;
        QRectF remove;
    };

    // The name takes what its text needs, up to what the details and the controls leave free
    // (the label then shortens the name); the details follow it, shortened only when the name
    // has its fixed width.
    static Frames frames(const Input& input);
};
