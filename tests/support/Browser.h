#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

/// Gets the links in place of the browser and of the application.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() {
        for (const QString& scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    ~Browser() override {
        for (const QString& scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    Q_INVOKABLE void open(const QUrl& url) { opened << url; }

    QList<QUrl> opened;

private:
    const QStringList m_schemes{QStringLiteral("https"), QStringLiteral("noteloft")};
};
