#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class LoadingStatusView;
class QComboBox;
class QLabel;
class QScrollArea;
class QWidget;
class RoundedView;
class UploadBaseViewController;
struct Notification;

// What the two upload screens share in their look: the file list with its per-file choices,
// their headings and captions, and the metadata column that grows with its content.
class UploadScreenLayout {
public:
    struct Pieces {
        QLabel* heading = nullptr;
        RoundedView* filesTableFrame = nullptr;
        QLabel* statusLabel = nullptr;
        QScrollArea* metadataScrollArea = nullptr;
    };

    // Also: Ctrl+Return presses "Upload files".
    static void setUp(UploadBaseViewController& screen, const Pieces& pieces,
                      const QList<QLabel*>& captions);
    // Places the column's shown views one under the other, a caption close to what it names,
    // and makes the scrolled content end a little below the last.
    static void stackColumn(QWidget& content, const QList<QWidget*>& views);
    // A loaded catalogue list in its popup with nothing chosen yet, or the note that there is
    // nothing to choose from.
    template <class Entries>
    static void fillPopup(QComboBox& popup, const Entries& entries, LoadingStatusView& status,
                          const QString& emptyNote) {
        QStringList names;
        for (const auto& entry : entries) {
            names << entry->name;
        }
        fillPopupWithNames(popup, names, status, emptyNote);
    }
    // The service's message of a failed catalogue load.
    static QString failureText(const Notification& notification);

private:
    static void fillPopupWithNames(QComboBox& popup, const QStringList& names,
                                   LoadingStatusView& status, const QString& emptyNote);
};
