#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>
#include <memory>

class QLabel;
class RoundedButton;
class RoundedView;
class TagButton;
class TagsViewDelegate;
class VerticallyCenteredTextFieldCell;

namespace Ui {
class TagsView;
}

// Free-text tags for an upload: typed into the entry field (Return or "Add") and shown as chips
// in rows under it, which wrap at the view's width. The view grows downward by a row of 36 when
// a row is needed and shrinks when its bottom row empties, keeping its top edge, and tells its
// delegate each time. Removing the last chip takes the view back to the bare entry field.
class TagsView : public QWidget {
    Q_OBJECT

public:
    explicit TagsView(QWidget* parent = nullptr);
    ~TagsView() override;

    // In the order entered. Deleting a chip drops every tag of its text.
    const QStringList& tags() const { return tags_; }
    const QList<TagButton*>& tagButtons() const { return tagButtons_; }

    TagsViewDelegate* delegate() const { return delegate_; }
    void setDelegate(TagsViewDelegate* delegate) { delegate_ = delegate; }

    QLabel* titleTextField() const;
    VerticallyCenteredTextFieldCell* tagTextField() const;
    RoundedView* tagTextFieldBackground() const;
    RoundedButton* addButton() const;

    // Adds the typed tag, trimmed; nothing when the field is empty.
    void addTagsButtonDidTouch();
    void deleteTagButton(TagButton* chip);
    void refreshTagButtonFramesFromIndex(qsizetype index);
    void addNewRow();
    void removeRow();
    void clearView();

private:
    void changeHeightBy(qreal rows);
    qreal entryBackgroundY() const;

    std::unique_ptr<Ui::TagsView> ui_;
    QStringList tags_;
    QList<TagButton*> tagButtons_;
    TagsViewDelegate* delegate_ = nullptr;
    int rows_ = 0;
};
