#pragma once

#include <QtGlobal>

// The results screen's vertical stacking, from the heights its layout gives: the buttons at the
// bottom, then (with failures) "Try Again", the list of failed files and its heading, then the
// count and the illustration, with fixed gaps; the whole stack centred in the background. The
// list grows a row at a time up to four rows and scrolls from five. All values are points with
// the origin at the lower left, each rounded to single precision as it is computed.
class ResultsLayout {
public:
    static constexpr float kRowHeight = 26;
    static constexpr float kRowTextHeight = 20;
    static constexpr float kScrollHeightFromFiveRows = 130;

    struct Heights {
        float homeButton;
        float accountButton;
        float tryAgainButton;
        float notUploadedLabel;
        float uploadCountLabel;
        float imageView;
        float background;
    };

    struct Result {
        bool showsFailures;
        float listHeight;  // the list itself, 26 a row
        float scrollViewHeight;
        float buttonsY;  // "Back to home" and the folder button
        float tryAgainButtonY;
        float scrollViewY;
        float notUploadedLabelY;
        float uploadCountLabelY;
        float imageViewY;
        float componentsY;
        float componentsHeight;
    };

    static Result layout(const Heights& heights, qsizetype failedCount);
    // Where the list's row for the failed file at this index sits within the list.
    static float rowY(qsizetype index) { return kRowHeight * static_cast<float>(index); }
};
