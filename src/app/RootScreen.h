#pragma once

class UploadBaseViewController;

// The screen at the bottom of the navigator, made when the application starts; its start
// button pushes the progress screen, its source buttons the upload screens.
UploadBaseViewController* makeRootScreen();
