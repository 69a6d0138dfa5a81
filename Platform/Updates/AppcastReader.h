#pragma once

#include "Platform/Updates/AppcastItem.h"

#include <QByteArray>
#include <QList>
#include <QXmlStreamReader>

namespace platform {

/// Reads the items of one feed; see `Appcast::read`.
class AppcastReader {
public:
    explicit AppcastReader(const QByteArray& data) : m_xml(data) {}

    QList<AppcastItem> read();

    /// What was wrong, or empty.
    QString error() const;

private:
    bool readProlog();
    void readChannel(QList<AppcastItem>& items);
    AppcastItem readItem();
    void readSparkleElement(AppcastItem& item);
    void readEnclosure(AppcastItem& item);
    QUrl readUrl();
    QString readText();

    QXmlStreamReader m_xml;
};

} // namespace platform
