#include "ui/navigation/MainWindow.h"

#include <QLayout>
#include <QVBoxLayout>

#include "ui/controls/ImageSet.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/TitleStrip.h"
#include "ui/navigation/UpdateBar.h"

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent),
      navigationViewController_(new NavigationViewController(this)),
      titleStrip_(new TitleStrip(kContentSize.width())),
      updateBar_(new UpdateBar) {
    setWindowTitle(QStringLiteral("Orvale"));
    setWindowIcon(ImageSet::icon(QStringLiteral("orvale_app_icon.png")));

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(titleStrip_);
    layout->addWidget(updateBar_);
    M3NavigationView* navigationView = navigationViewController_->navigationView();
    navigationView->setFixedSize(kContentSize);
    // Screens are white; so is the content while a screen slides in.
    navigationView->setAutoFillBackground(true);
    QPalette white = navigationView->palette();
    white.setColor(QPalette::Window, Qt::white);
    navigationView->setPalette(white);
    layout->addWidget(navigationView);
    setCentralWidget(content);
    // The window keeps the content's size, menu bar or not.
    this->layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* MainWindow::titleBarView() const { return titleStrip_->titleBarView(); }
