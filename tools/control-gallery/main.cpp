// orvale-gallery OUTPUT_DIR
//
// Draws every styled control in every type and state (normal, pressed, keyboard focus), the
// metadata views and the file list, and the main window, at the screen's pixel ratio
// (QT_SCALE_FACTOR=2 for 2x), into OUTPUT_DIR/controls-Nx.png, views-Nx.png and window-Nx.png.
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <functional>
#include <memory>
#include <vector>

#include "model/HEX.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/Checkbox.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/controls/VerticallyCenteredTextFieldCell.h"
#include "ui/files/FilesTableView.h"
#include "ui/metadata/CreditsView.h"
#include "ui/metadata/InputView.h"
#include "ui/metadata/TagsView.h"
#include "ui/navigation/BaseViewController.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/WindowAppDelegate.h"

namespace {

enum class State { Normal, Pressed, Focused };

struct Tile {
    QString label;
    QPixmap picture;
};

using Maker = std::function<StyledButton*(QWidget*)>;

const QColor kSheetColor(0xf4, 0xf5, 0xf7);

QPixmap capture(QWidget* control) {
    control->move(20, 20);
    control->show();
    QApplication::processEvents();
    // Drawn on a clear picture, so what a control leaves unpainted shows as the sheet.
    const qreal ratio = control->devicePixelRatioF();
    QPixmap picture(control->size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    control->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

std::vector<Tile> panelTiles(QWidget* sheet) {
    const int heights[] = {32, 36, 60, 36, 40, 40, 26, 26, 40, 40,
                           26, 26, 40, 40, 28, 22, 10, 10, 10, 40};
    std::vector<Tile> tiles;
    for (int type = 0; type <= 19; ++type) {
        RoundedView view(sheet);
        view.setType(type);
        view.resize(type == 2 ? 160 : 150, heights[type]);
        tiles.push_back({QStringLiteral("RoundedView %1").arg(type), capture(&view)});
    }
    return tiles;
}

std::vector<Tile> buttonTiles(QWidget* sheet, const QString& name, const Maker& make) {
    std::vector<Tile> tiles;
    for (const State state : {State::Normal, State::Pressed, State::Focused}) {
        std::unique_ptr<StyledButton> button(make(sheet));
        button->show();  // focus set on a hidden widget arrives without its reason
        if (auto* imageButton = qobject_cast<ButtonWithImage*>(button.get());
            imageButton != nullptr && state == State::Pressed) {
            imageButton->setHighlighted(true);
        } else if (state == State::Pressed) {
            button->setDown(true);
        } else if (state == State::Focused) {
            button->setFocus(Qt::TabFocusReason);
        }
        const char* suffix[] = {"", " pressed", " focused"};
        tiles.push_back(
            {name + QLatin1String(suffix[static_cast<int>(state)]), capture(button.get())});
    }
    return tiles;
}

std::vector<std::vector<Tile>> allTiles(QWidget* sheet) {
    std::vector<std::vector<Tile>> rows;
    const std::vector<Tile> panels = panelTiles(sheet);
    for (size_t start = 0; start < panels.size(); start += 5) {
        rows.emplace_back(panels.begin() + static_cast<long>(start),
                          panels.begin() + static_cast<long>(std::min(start + 5, panels.size())));
    }
    const char* titles[] = {"Add", "Show in Finder", "Encode files", "Select files",
                            "Back to home"};
    const int heights[] = {26, 40, 40, 26, 40};
    for (int type = 0; type <= 4; ++type) {
        rows.push_back(
            buttonTiles(sheet, QStringLiteral("RoundedButton %1").arg(type), [&](QWidget* parent) {
                auto* button = new RoundedButton(parent);
                button->resize(type == 0 ? 80 : 190, heights[type]);
                button->setType(type);
                button->setTitleString(QLatin1String(titles[type]));
                if (type >= 3) {
                    button->setTitleColor(HEX::colorWithHexString(QStringLiteral("#666666")));
                }
                return button;
            }));
    }
    const auto iconButton = [](const char* icon, const char* highlightedIcon, const char* color,
                               int fontSize, const char* title) {
        return [=](QWidget* parent) {
            auto* button = new ButtonWithIcon(parent);
            button->resize(100, 26);
            button->setIconName(QLatin1String(icon));
            button->setHighlightedIconName(QLatin1String(highlightedIcon));
            button->setTitleColor(HEX::colorWithHexString(QLatin1String(color)));
            button->setTitleFont(Fonts::helveticaNeueBold(fontSize));
            button->setTitleString(QLatin1String(title));
            return button;
        };
    };
    rows.push_back(buttonTiles(
        sheet, QStringLiteral("ButtonWithIcon"),
        iconButton("button_retry.png", "button_retry.png", "#00a9e8", 14, "Try Again")));
    rows.push_back(
        buttonTiles(sheet, QStringLiteral("Back"),
                    iconButton("icon_home.png", "icon_home_selected.png", "#999999", 12, "Back")));
    for (const bool selected : {false, true}) {
        rows.push_back(buttonTiles(
            sheet, selected ? QStringLiteral("Checkbox on") : QStringLiteral("Checkbox"),
            [selected](QWidget* parent) {
                auto* box = new Checkbox(parent);
                box->resize(150, 15);
                box->setTitleString(QStringLiteral("Preserve original"));
                box->setSelected(selected);
                return box;
            }));
    }
    for (const char* source : {"media_library", "project", "local"}) {
        rows.push_back(buttonTiles(sheet, QLatin1String(source), [source](QWidget* parent) {
            auto* button = new ButtonWithImage(parent);
            button->resize(132, 34);
            const QString stem = QStringLiteral("button_source_%1").arg(QLatin1String(source));
            button->setNormalImage(stem + QStringLiteral(".png"));
            button->setHighlightedImage(stem + QStringLiteral("_selected.png"));
            button->setSelectedImage(stem + QStringLiteral("_selected.png"));
            return button;
        }));
    }
    rows.push_back(buttonTiles(sheet, QStringLiteral("delete file"), [](QWidget* parent) {
        auto* button = new ButtonWithImage(parent);
        button->resize(18, 18);
        button->setNormalImage(QStringLiteral("button_delete_file.png"));
        button->setHighlightedImage(QStringLiteral("button_delete_file_highlighted.png"));
        return button;
    }));
    return rows;
}

QImage compose(const std::vector<std::vector<Tile>>& rows, qreal ratio) {
    constexpr int kColumnWidth = 230;
    constexpr int kLabelHeight = 18;
    constexpr int kGap = 16;
    int height = kGap;
    for (const auto& row : rows) {
        int tallest = 0;
        for (const Tile& tile : row) {
            tallest = std::max(tallest, qRound(tile.picture.deviceIndependentSize().height()));
        }
        height += kLabelHeight + tallest + kGap;
    }
    QImage sheet(QSize(kColumnWidth * 5 + kGap, height) * ratio, QImage::Format_ARGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(kSheetColor);
    QPainter painter(&sheet);
    painter.setFont(Fonts::helveticaNeue(11));
    painter.setPen(QColor(0x70, 0x76, 0x7c));
    int y = kGap;
    for (const auto& row : rows) {
        int x = kGap;
        int tallest = 0;
        for (const Tile& tile : row) {
            painter.drawText(x, y + 12, tile.label);
            painter.drawPixmap(x, y + kLabelHeight, tile.picture);
            tallest = std::max(tallest, qRound(tile.picture.deviceIndependentSize().height()));
            x += kColumnWidth;
        }
        y += kLabelHeight + tallest + kGap;
    }
    return sheet;
}

FilePtr galleryFile(const QString& name, double width, double height, double seconds) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(QStringLiteral("/clips/") + name));
    file->isVideo = width > 0;
    file->size = 2400000;
    if (file->isVideo) {
        file->videoDetail = std::make_shared<VideoDetail>();
        file->videoDetail->width = width;
        file->videoDetail->height = height;
        file->videoDetail->duration = seconds * 1000;
    }
    return file;
}

FileList galleryFiles() {
    return {galleryFile(QStringLiteral("Summer holiday at the lake with the whole family, "
                                       "second afternoon, uncut.mov"),
                        1280, 720, 754),
            galleryFile(QStringLiteral("interview.mp4"), 1920, 1080, 192),
            galleryFile(QStringLiteral("notes.pdf"), 0, 0, 0)};
}

QLabel* caption(QWidget* board, const QString& text, const QPoint& at) {
    auto* label = new QLabel(text, board);
    label->setFont(Fonts::helveticaNeue(11));
    label->setStyleSheet(QStringLiteral("color: #70767c;"));
    label->move(at);
    return label;
}

// The metadata views and the file list as the screens will show them.
QPixmap viewsPicture() {
    QWidget board;
    board.resize(960, 640);
    QPalette white = board.palette();
    white.setColor(QPalette::Window, Qt::white);
    board.setPalette(white);
    board.setAutoFillBackground(true);

    caption(&board, QStringLiteral("TagsView: two rows, a long tag"), {20, 10});
    auto* tags = new TagsView(&board);
    tags->move(20, 30);
    for (const QString& tag :
         {QStringLiteral("holiday"), QStringLiteral("lake"), QStringLiteral("summer 2015"),
          QStringLiteral("a tag so long that its chip stops growing and cuts the rest off")}) {
        tags->tagTextField()->setText(tag);
        tags->addTagsButtonDidTouch();
    }

    caption(&board, QStringLiteral("CreditsView: three credits"), {420, 10});
    auto* credits = new CreditsView(&board);
    credits->move(420, 30);
    CreditList list;
    for (const char* name : {"Director", "Camera", "Editor"}) {
        list.append(std::make_shared<Credit>());
        list.last()->name = QLatin1String(name);
    }
    credits->setCredits(list);
    credits->creditInputViews().first()->textField()->setText(QStringLiteral("Ann Lee"));

    caption(&board, QStringLiteral("CreditsView: no category"), {740, 10});
    auto* noCategory = new CreditsView(&board);
    noCategory->move(740, 30);
    noCategory->clearView();

    caption(&board, QStringLiteral("FilesTableView: local encode"), {20, 240});
    auto* local = new FilesTableView(&board);
    local->setGeometry(20, 260, 640, 160);
    local->setFiles(galleryFiles());
    local->selectRow(1);

    caption(&board, QStringLiteral("FilesTableView: upload (Do Not Encode, preserve original)"),
            {20, 440});
    auto* upload = new FilesTableView(&board);
    upload->setGeometry(20, 460, 640, 160);
    upload->setHasDoNotEncode(true);
    upload->setHasPreserveOriginal(true);
    FileList files = galleryFiles();
    files.at(0)->videoDetail->preserveOriginal = true;
    files.at(1)->videoDetail->doNotEncode = true;
    upload->setFiles(files);

    board.show();
    QApplication::processEvents();
    return board.grab();
}

QPixmap windowPicture() {
    WindowAppDelegate delegate;
    AppDelegateInterface::setApplicationDelegate(&delegate);
    auto* root = BaseViewController::create<BaseViewController>();
    delegate.navigationViewController()->setViewController(root);
    root->addBackButton();
    auto* field = new VerticallyCenteredTextFieldCell(root);
    field->setGeometry(40, 40, 276, 32);
    field->setPlaceholderText(QStringLiteral("Credit"));
    auto* panel = new RoundedView(root);
    panel->setType(0);
    panel->setGeometry(27, 40, 302, 32);
    field->raise();
    delegate.window()->show();
    QApplication::processEvents();
    QPixmap picture = delegate.window()->grab();
    AppDelegateInterface::setApplicationDelegate(nullptr);
    return picture;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    if (argc != 2) {
        qWarning("usage: orvale-gallery OUTPUT_DIR");
        return 2;
    }
    const QDir output(QString::fromLocal8Bit(argv[1]));
    output.mkpath(QStringLiteral("."));

    QWidget sheet;
    sheet.resize(600, 200);
    sheet.show();
    QApplication::setActiveWindow(&sheet);
    const qreal ratio = sheet.devicePixelRatioF();
    const QString suffix = QStringLiteral("-%1x.png").arg(ratio);

    const bool saved = compose(allTiles(&sheet), ratio)
                           .save(output.filePath(QStringLiteral("controls") + suffix)) &&
                       viewsPicture().save(output.filePath(QStringLiteral("views") + suffix)) &&
                       windowPicture().save(output.filePath(QStringLiteral("window") + suffix));
    return saved ? 0 : 1;
}
