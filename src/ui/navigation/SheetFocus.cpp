#include "ui/navigation/SheetFocus.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>

void SheetFocus::returnAfter(QDialog* sheet) {
    QWidget* window = sheet->parentWidget() != nullptr ? sheet->parentWidget()->window() : nullptr;
    if (window == nullptr) {
        return;
    }
    QPointer<QWidget> under = window;
    QPointer<QWidget> hadFocus = QApplication::focusWidget();
    QObject::connect(sheet, &QDialog::finished, window, [under, hadFocus] {
        if (under == nullptr || !under->isVisible()) {
            return;
        }
        under->activateWindow();
        if (hadFocus != nullptr && hadFocus->window() == under && hadFocus->isVisible()) {
            hadFocus->setFocus(Qt::ActiveWindowFocusReason);
        }
    });
}
