#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class BaseViewController;
class QParallelAnimationGroup;

// Holds the stack of screens and shows one of them, filling its bounds; changes slide the
// screens' views sideways. A screen's view stays inside this view (a subview) from the moment it
// is shown until the end of the next slide, so a view moved away without a slide stays here, out
// of sight, until then. The screen being left is kept as prevViewController() until that end
// too. Screens on the stack, current or previous belong to this view; any other is deleted.
class M3NavigationView : public QWidget {
    Q_OBJECT

public:
    static constexpr int kSlideDurationMs = 350;

    explicit M3NavigationView(QWidget* parent = nullptr);
    ~M3NavigationView() override;

    const QList<BaseViewController*>& viewStack() const { return viewStack_; }
    BaseViewController* currentViewController() const { return current_; }
    BaseViewController* prevViewController() const { return prev_; }
    // The screens' views inside this view, bottom first.
    QList<QWidget*> subviews() const;

    // The stack becomes this one screen, shown at once; it does not get activateView.
    void setViewController(BaseViewController* screen);
    void pushViewController(BaseViewController* screen, bool animated);
    // Nothing happens with fewer than two screens.
    void popViewControllerAnimated(bool animated);
    // The index must lie below the top.
    void popToViewControllerWithIndex(qsizetype index, bool animated);
    void insertViewController(BaseViewController* screen, qsizetype index);
    // -1 when the screen is not on the stack.
    qsizetype indexOfViewController(const BaseViewController* screen) const;
    // Slides to the entry at the index without changing the stack.
    void showViewControllerAtIndex(qsizetype index);
    // Slides from one entry to another as an animated push does, leaving the stack unchanged.
    void pushToViewControllerWithIndex(qsizetype index, qsizetype fromIndex);
    // Takes the top entry off the stack without changing what is shown.
    void removeLastViewController();

    int slideDuration() const { return slideDurationMs_; }
    void setSlideDuration(int milliseconds) { slideDurationMs_ = milliseconds; }
    bool isAnimating() const { return !slide_.isNull(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Move {
        QWidget* view;
        QPoint to;
    };

    QPoint left() const { return {-width(), 0}; }
    QPoint right() const { return {width(), 0}; }
    void addSubview(BaseViewController* screen, const QPoint& at);
    void removeSubview(QWidget* view);
    void slide(const QList<Move>& moves);
    void interruptSlide();
    void animationDidStop(bool finished);
    void enterFromSide(BaseViewController* target, bool fromRight);
    void leaveTo(BaseViewController* leaving, BaseViewController* returning, bool animated);
    void setPrev(BaseViewController* screen);
    void releaseIfUnused(BaseViewController* screen);

    QList<BaseViewController*> viewStack_;
    BaseViewController* current_ = nullptr;
    BaseViewController* prev_ = nullptr;
    QPointer<QParallelAnimationGroup> slide_;
    int slideDurationMs_ = kSlideDurationMs;
};
