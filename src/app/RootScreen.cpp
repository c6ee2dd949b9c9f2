#include "app/RootScreen.h"

#include "ui/screens/LocalEncodeViewController.h"
#include "ui/screens/UploadProgressViewController.h"

UploadBaseViewController* makeRootScreen() {
    auto* screen = BaseViewController::create<LocalEncodeViewController>();
    screen->setProgressScreenFactory(
        [] { return BaseViewController::create<UploadProgressViewController>(); });
    return screen;
}
