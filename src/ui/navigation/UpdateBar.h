#pragma once

#include <QUrl>
#include <QWidget>

class NotificationCenter;
class QLabel;

// A slim bar under the title strip that tells of a newer release, with a link to the maker's
// download page and a button that closes it. It takes room of its own in the window's layout,
// so the screens below keep their whole area; hidden, it takes none.
class UpdateBar : public QWidget {
    Q_OBJECT

public:
    static constexpr int kHeight = 28;

    explicit UpdateBar(QWidget* parent = nullptr);

    void showNewVersion(const QString& version, const QUrl& downloadPage);
    // Shows the bar for each "kNotificationNewVersionAvailable", with the version its sender
    // found and the download page of the maker's site.
    void observeNewVersions(NotificationCenter& center);

    QString message() const;
    QUrl downloadPage() const { return downloadPage_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* label_;
    QUrl downloadPage_;
};
