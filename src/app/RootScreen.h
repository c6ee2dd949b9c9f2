#pragma once

class BaseViewController;

// The screen at the bottom of the navigator, made when the application starts.
BaseViewController* makeRootScreen();
