#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

/// Gets the links in place of the browser.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }

    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    Q_INVOKABLE void open(const QUrl& url) { opened << url; }

    QList<QUrl> opened;
};
