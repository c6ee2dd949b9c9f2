#include "ui/navigation/M3NavigationView.h"

#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QSet>
#include <algorithm>

#include "ui/navigation/BaseViewController.h"

M3NavigationView::M3NavigationView(QWidget* parent) : QWidget(parent) {}

M3NavigationView::~M3NavigationView() {
    if (slide_ != nullptr) {
        slide_->stop();
    }
    QSet<BaseViewController*> owned(viewStack_.cbegin(), viewStack_.cend());
    owned << current_ << prev_;
    owned.remove(nullptr);
    qDeleteAll(owned);
}

QList<QWidget*> M3NavigationView::subviews() const {
    return findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
}

void M3NavigationView::setViewController(BaseViewController* screen) {
    const QList<BaseViewController*> old = viewStack_;
    BaseViewController* oldCurrent = current_;
    viewStack_ = {screen};
    current_ = screen;
    if (oldCurrent != nullptr && oldCurrent != screen) {
        removeSubview(oldCurrent);
        releaseIfUnused(oldCurrent);
    }
    for (BaseViewController* entry : old) {
        releaseIfUnused(entry);
    }
    screen->resize(size());
    addSubview(screen, {0, 0});
}

void M3NavigationView::pushViewController(BaseViewController* screen, bool animated) {
    screen->resize(size());
    QList<Move> moves;
    if (animated) {
        interruptSlide();
        if (current_ != nullptr) {
            current_->willStartAnimating();
            moves.append({current_, left()});
        }
        screen->willStartAnimating();
        addSubview(screen, right());
        moves.append({screen, {0, 0}});
    } else {
        addSubview(screen, {0, 0});
        if (current_ != nullptr) {
            current_->move(left());
        }
    }
    viewStack_.append(screen);
    setPrev(current_);
    current_ = screen;
    screen->activateView();
    slide(moves);
}

void M3NavigationView::popViewControllerAnimated(bool animated) {
    if (viewStack_.size() < 2) {
        return;
    }
    if (animated) {
        interruptSlide();
    }
    BaseViewController* leaving = viewStack_.takeLast();
    leaveTo(leaving, viewStack_.last(), animated);
}

void M3NavigationView::popToViewControllerWithIndex(qsizetype index, bool animated) {
    if (index < 0 || index >= viewStack_.size() - 1) {
        return;
    }
    if (animated) {
        interruptSlide();
    }
    BaseViewController* leaving = viewStack_.takeLast();
    setPrev(leaving);
    while (viewStack_.size() > index + 1) {
        releaseIfUnused(viewStack_.takeLast());
    }
    leaveTo(leaving, viewStack_.last(), animated);
}

void M3NavigationView::leaveTo(BaseViewController* leaving, BaseViewController* returning,
                               bool animated) {
    setPrev(leaving);
    current_ = returning;
    returning->resize(size());
    if (animated) {
        leaving->willStartAnimating();
        returning->willStartAnimating();
        leaving->move(0, 0);
        addSubview(returning, left());
    } else {
        leaving->move(right());
        addSubview(returning, {0, 0});
    }
    returning->activateView();
    if (animated) {
        slide({{leaving, right()}, {returning, {0, 0}}});
    }
}

void M3NavigationView::insertViewController(BaseViewController* screen, qsizetype index) {
    viewStack_.insert(std::clamp<qsizetype>(index, 0, viewStack_.size()), screen);
}

qsizetype M3NavigationView::indexOfViewController(const BaseViewController* screen) const {
    return viewStack_.indexOf(screen);
}

void M3NavigationView::showViewControllerAtIndex(qsizetype index) {
    if (index < 0 || index >= viewStack_.size() || viewStack_.at(index) == current_) {
        return;
    }
    enterFromSide(viewStack_.at(index), indexOfViewController(current_) <= index);
}

void M3NavigationView::pushToViewControllerWithIndex(qsizetype index, qsizetype fromIndex) {
    if (index < 0 || index >= viewStack_.size() || fromIndex < 0 ||
        fromIndex >= viewStack_.size() || index == fromIndex) {
        return;
    }
    BaseViewController* from = viewStack_.at(fromIndex);
    if (from != current_) {
        setPrev(current_);
        current_ = from;
    }
    enterFromSide(viewStack_.at(index), true);
}

void M3NavigationView::enterFromSide(BaseViewController* target, bool fromRight) {
    interruptSlide();
    target->resize(size());
    if (current_ != nullptr) {
        current_->willStartAnimating();
    }
    target->willStartAnimating();
    addSubview(target, fromRight ? right() : left());
    QList<Move> moves{{target, {0, 0}}};
    if (current_ != nullptr) {
        moves.append({current_, fromRight ? left() : right()});
    }
    setPrev(current_);
    current_ = target;
    target->activateView();
    slide(moves);
}

void M3NavigationView::removeLastViewController() {
    if (!viewStack_.isEmpty()) {
        releaseIfUnused(viewStack_.takeLast());
    }
}

void M3NavigationView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (current_ != nullptr) {
        current_->resize(size());
    }
}

void M3NavigationView::addSubview(BaseViewController* screen, const QPoint& at) {
    if (screen->parentWidget() != this) {
        screen->setParent(this);
    }
    screen->move(at);
    screen->show();
    screen->raise();
}

void M3NavigationView::removeSubview(QWidget* view) {
    view->hide();
    view->setParent(nullptr);
}

// Starts once the operation's state is in place: a slide of no duration ends within start().
void M3NavigationView::slide(const QList<Move>& moves) {
    if (moves.isEmpty()) {
        return;
    }
    auto* group = new QParallelAnimationGroup(this);
    for (const Move& move : moves) {
        auto* animation = new QPropertyAnimation(move.view, "pos", group);
        animation->setDuration(slideDurationMs_);
        animation->setEasingCurve(QEasingCurve::InOutQuad);
        animation->setEndValue(move.to);
        group->addAnimation(animation);
    }
    slide_ = group;
    connect(group, &QAbstractAnimation::finished, this, [this, group] {
        group->deleteLater();
        if (slide_ == group) {
            slide_ = nullptr;
            animationDidStop(true);
        }
    });
    group->start();
}

void M3NavigationView::interruptSlide() {
    if (slide_ == nullptr) {
        return;
    }
    QParallelAnimationGroup* running = slide_;
    slide_ = nullptr;
    running->stop();
    running->deleteLater();
    animationDidStop(false);
}

void M3NavigationView::animationDidStop(bool finished) {
    for (QWidget* view : subviews()) {
        if (view != current_) {
            removeSubview(view);
        }
    }
    if (finished) {
        if (current_ != nullptr) {
            current_->didFinishAnimating();
        }
        if (prev_ != nullptr) {
            prev_->didFinishAnimating();
        }
    }
    setPrev(nullptr);
}

void M3NavigationView::setPrev(BaseViewController* screen) {
    BaseViewController* old = prev_;
    prev_ = screen;
    if (old != screen) {
        releaseIfUnused(old);
    }
}

void M3NavigationView::releaseIfUnused(BaseViewController* screen) {
    if (screen == nullptr || screen == current_ || screen == prev_ || viewStack_.contains(screen)) {
        return;
    }
    removeSubview(screen);
    screen->deleteLater();
}
