#include "model/RoundedViewImages.h"

#include <array>

namespace {

struct ThreeParts {
    const char* left;
    const char* center;
    const char* right;
};

// Indexed by type; the nine-part type's row is unused.
constexpr std::array<ThreeParts, 19> kThreePartTypes{{
    {"background_textfield_white_small_left.png", "background_textfield_white_small_center.png",
     "background_textfield_white_small_right.png"},
    {"background_textfield_white_left.png", "background_textfield_white_center.png",
     "background_textfield_white_right.png"},
    {nullptr, nullptr, nullptr},
    {"background_textfield_grey_left.png", "background_textfield_white_center.png",
     "background_textfield_white_right.png"},
    {"background_button_blue_left_big.png", "background_button_blue_center_big.png",
     "background_button_blue_right_big.png"},
    {"background_button_blue_left_big_highlighted.png",
     "background_button_blue_center_big_highlighted.png",
     "background_button_blue_right_big_highlighted.png"},
    {"background_button_blue_left_small.png", "background_button_blue_center_small.png",
     "background_button_blue_right_small.png"},
    {"background_button_blue_left_small_highlighted.png",
     "background_button_blue_center_small_highlighted.png",
     "background_button_blue_right_small_highlighted.png"},
    {"background_button_yellow_left.png", "background_button_yellow_center.png",
     "background_button_yellow_right.png"},
    {"background_button_yellow_left_highlighted.png",
     "background_button_yellow_center_highlighted.png",
     "background_button_yellow_right_highlighted.png"},
    {"background_button_gray_left_small.png", "background_button_gray_center_small.png",
     "background_button_gray_right_small.png"},
    {"background_button_gray_left_small_highlighted.png",
     "background_button_gray_center_small_highlighted.png",
     "background_button_gray_right_small_highlighted.png"},
    {"background_button_gray_left_big.png", "background_button_gray_center_big.png",
     "background_button_gray_right_big.png"},
    {"background_button_gray_left_big_highlighted.png",
     "background_button_gray_center_big_highlighted.png",
     "background_button_gray_right_big_highlighted.png"},
    {"background_combobox_gray_left.png", "background_combobox_gray_center.png",
     "background_combobox_gray_right.png"},
    {"background_combobox_gray_small_left.png", "background_combobox_gray_small_center.png",
     "background_combobox_gray_small_right.png"},
    {"background_progressbar_total_left.png", "background_progressbar_total_center.png",
     "background_progressbar_total_right.png"},
    {"background_progressbar_uploaded_left.png", "background_progressbar_uploaded_center.png",
     "background_progressbar_uploaded_right.png"},
    {"background_progressbar_converted_left.png", "background_progressbar_converted_center.png",
     "background_progressbar_converted_right.png"},
}};

}  // namespace

QStringList RoundedViewImages::imagesForType(int type) {
    if (type == kNinePartType) {
        QStringList parts;
        for (const char* part : {"topleft", "topedge", "topright", "leftedge", "center",
                                 "rightedge", "bottomleft", "bottomedge", "bottomright"}) {
            parts
                << QStringLiteral("background_textfield_white_big_%1.png").arg(QLatin1String(part));
        }
        return parts;
    }
    if (type < 0 || type >= static_cast<int>(kThreePartTypes.size())) {
        return {};
    }
    const ThreeParts& row = kThreePartTypes[static_cast<size_t>(type)];
    return {QLatin1String(row.left), QLatin1String(row.center), QLatin1String(row.right)};
}
