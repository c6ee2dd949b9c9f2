#include "app/RootScreen.h"

#include "ui/screens/LocalEncodeViewController.h"
#include "ui/screens/MediaLibraryUploadViewController.h"
#include "ui/screens/ProjectUploadViewController.h"
#include "ui/screens/UploadProgressViewController.h"

namespace {

BaseViewController* makeProgressScreen() {
    return BaseViewController::create<UploadProgressViewController>();
}

template <class Screen>
BaseViewController* makeUploadScreen() {
    auto* screen = BaseViewController::create<Screen>();
    screen->setProgressScreenFactory(makeProgressScreen);
    return screen;
}

}  // namespace

UploadBaseViewController* makeRootScreen() {
    auto* screen = BaseViewController::create<LocalEncodeViewController>();
    screen->setProgressScreenFactory(makeProgressScreen);
    screen->setUploadScreenFactories(makeUploadScreen<ProjectUploadViewController>,
                                     makeUploadScreen<MediaLibraryUploadViewController>);
    return screen;
}
