#include "ui/navigation/AppDelegateInterface.h"

#include "ui/navigation/MainWindow.h"

namespace {

AppDelegateInterface* registeredDelegate = nullptr;

}  // namespace

NavigationViewController* AppDelegateInterface::navigationViewController() const {
    return window() != nullptr ? window()->navigationViewController() : nullptr;
}

QWidget* AppDelegateInterface::titleBarView() const {
    return window() != nullptr ? window()->titleBarView() : nullptr;
}

AppDelegateInterface* AppDelegateInterface::applicationDelegate() { return registeredDelegate; }

void AppDelegateInterface::setApplicationDelegate(AppDelegateInterface* delegate) {
    registeredDelegate = delegate;
}
