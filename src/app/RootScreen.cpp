#include "app/RootScreen.h"

#include "ui/navigation/BaseViewController.h"

BaseViewController* makeRootScreen() { return BaseViewController::create<BaseViewController>(); }
