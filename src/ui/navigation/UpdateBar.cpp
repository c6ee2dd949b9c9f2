#include "ui/navigation/UpdateBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

#include "model/HEX.h"
#include "model/StatusTexts.h"
#include "platform/NotificationCenter.h"
#include "service/MakerSite.h"
#include "service/ServerManagerHTTP.h"
#include "ui/controls/Fonts.h"

UpdateBar::UpdateBar(QWidget* parent) : QWidget(parent), label_(new QLabel(this)) {
    setFixedHeight(kHeight);
    setAccessibleName(QStringLiteral("New version"));
    label_->setFont(Fonts::helveticaNeue(12));
    label_->setTextFormat(Qt::RichText);
    label_->setOpenExternalLinks(true);
    label_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);

    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("\u2715"));
    close->setAccessibleName(QStringLiteral("Close"));
    close->setToolTip(QStringLiteral("Close"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 6, 1);
    layout->addWidget(label_, 1);
    layout->addWidget(close);
    hide();
}

void UpdateBar::showNewVersion(const QString& version, const QUrl& downloadPage) {
    downloadPage_ = downloadPage;
    label_->setText(QStringLiteral("%1 &nbsp;<a href=\"%2\">%3</a>")
                        .arg(StatusTexts::newVersionText(version).toHtmlEscaped(),
                             downloadPage.toString(QUrl::FullyEncoded).toHtmlEscaped(),
                             StatusTexts::kDownloadLinkText));
    show();
}

void UpdateBar::observeNewVersions(NotificationCenter& center) {
    center.addObserver(this, MakerSite::kNotificationNewVersionAvailable,
                       [this](const Notification& notification) {
                           const auto* sender = notification.object.value<ServerManagerHTTP*>();
                           if (sender != nullptr) {
                               showNewVersion(sender->newVersion(),
                                              QUrl(MakerSite::current().downloadURL()));
                           }
                       });
}

QString UpdateBar::message() const { return label_->text(); }

void UpdateBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), HEX::colorWithHexString(QStringLiteral("#fdf6d8")));
    painter.fillRect(QRect(0, height() - 1, width(), 1),
                     HEX::colorWithHexString(QStringLiteral("#dfdfdf")));
}
