#pragma once

#include <QList>
#include <QWidget>
#include <memory>
#include <optional>

#include "model/Credit.h"

class InputView;
class QLabel;

namespace Ui {
class CreditsView;
}

// One input per credit field of the chosen media-library category, 46 apart under the title,
// labelled by the credit's name. Without a credit list the view shows its placeholder instead;
// with an empty list only the title. The view fits its content, keeping its top edge.
class CreditsView : public QWidget {
    Q_OBJECT

public:
    explicit CreditsView(QWidget* parent = nullptr);
    ~CreditsView() override;

    const std::optional<CreditList>& credits() const { return credits_; }
    // Rebuilds the inputs; no value (std::nullopt) means no category is chosen.
    void setCredits(const std::optional<CreditList>& credits);
    // The credits with what was typed copied into each one's stringValue.
    CreditList creditsWithValues();
    const QList<InputView*>& creditInputViews() const { return creditInputViews_; }

    QLabel* titleTextField() const;
    QLabel* placeholderTextField() const;

    void updateView();
    void updateFrame();
    void clearView();

private:
    void removeInputViews();

    std::unique_ptr<Ui::CreditsView> ui_;
    std::optional<CreditList> credits_;
    QList<InputView*> creditInputViews_;
};
