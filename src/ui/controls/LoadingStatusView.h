#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

// One line under a catalogue list: that it is loading, or the service's message when it failed
// with a button to ask again. Empty and hidden while there is nothing to say.
class LoadingStatusView : public QWidget {
    Q_OBJECT

public:
    explicit LoadingStatusView(QWidget* parent = nullptr);

    void showLoading(const QString& text);
    void showFailure(const QString& message);
    void showNote(const QString& text);
    void clear();

    QLabel* textLabel() const { return label_; }
    QPushButton* retryButton() const { return retryButton_; }

signals:
    void retryRequested();

private:
    void show(const QString& text, const QString& color, bool retry);

    QLabel* label_;
    QPushButton* retryButton_;
};
