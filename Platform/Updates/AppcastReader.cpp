#include "Platform/Updates/AppcastReader.h"

namespace platform {

namespace {

const QString sparkle = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");

// The address is opened in a browser later; a feed must not reach local files or other programs with it.
QUrl secureUrl(const QString& text) {
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && url.scheme() == QStringLiteral("https") && !url.host().isEmpty() ? url : QUrl();
}

void setIfGiven(QString& field, const QString& value) {
    if (!value.isEmpty())
        field = value;
}

} // namespace

bool AppcastReader::readProlog() {
    while (!m_xml.atEnd()) {
        const auto token = m_xml.readNext();
        if (token == QXmlStreamReader::DTD)
            m_xml.raiseError(QStringLiteral("the feed declares a document type"));
        if (token == QXmlStreamReader::StartElement)
            break;
    }
    if (!m_xml.hasError() && m_xml.name() != QStringLiteral("rss"))
        m_xml.raiseError(QStringLiteral("the document is no feed"));
    return !m_xml.hasError();
}

QList<AppcastItem> AppcastReader::read() {
    QList<AppcastItem> items;
    if (!readProlog())
        return items;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QStringLiteral("channel"))
            readChannel(items);
        else
            m_xml.skipCurrentElement();
    }
    // What follows the root element has to be well-formed too.
    while (!m_xml.atEnd())
        m_xml.readNext();
    return items;
}

QString AppcastReader::error() const {
    if (m_xml.error() == QXmlStreamReader::CustomError)
        return m_xml.errorString();
    return m_xml.hasError() ? QStringLiteral("line %1 of the feed is damaged").arg(m_xml.lineNumber())
                            : QString();
}

void AppcastReader::readChannel(QList<AppcastItem>& items) {
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() != QStringLiteral("item")) {
            m_xml.skipCurrentElement();
            continue;
        }
        AppcastItem item = readItem();
        if (item.displayVersion.isEmpty())
            item.displayVersion = item.version;
        if (!item.version.isEmpty())
            items.append(item);
    }
}

AppcastItem AppcastReader::readItem() {
    AppcastItem item;
    while (m_xml.readNextStartElement()) {
        if (m_xml.namespaceUri() == sparkle)
            readSparkleElement(item);
        else if (m_xml.name() == QStringLiteral("link"))
            item.link = readUrl();
        else if (m_xml.name() == QStringLiteral("enclosure"))
            readEnclosure(item);
        else
            m_xml.skipCurrentElement();
    }
    item.isInformational = item.isInformational || item.downloadUrl.isEmpty();
    return item;
}

void AppcastReader::readSparkleElement(AppcastItem& item) {
    const QStringView name = m_xml.name();
    if (name == QStringLiteral("version"))
        item.version = readText();
    else if (name == QStringLiteral("shortVersionString"))
        item.displayVersion = readText();
    else if (name == QStringLiteral("channel"))
        item.channel = readText();
    else if (name == QStringLiteral("minimumSystemVersion"))
        item.minimumSystemVersion = readText();
    else if (name == QStringLiteral("releaseNotesLink"))
        item.releaseNotesUrl = readUrl();
    else {
        item.isInformational = item.isInformational || name == QStringLiteral("informationalUpdate");
        m_xml.skipCurrentElement();
    }
}

void AppcastReader::readEnclosure(AppcastItem& item) {
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const auto sparkleValue = [&](const QString& name) { return attributes.value(sparkle, name).toString(); };
    item.downloadUrl = secureUrl(attributes.value(QStringLiteral("url")).toString());
    item.operatingSystem = sparkleValue(QStringLiteral("os"));
    setIfGiven(item.version, sparkleValue(QStringLiteral("version")));
    setIfGiven(item.displayVersion, sparkleValue(QStringLiteral("shortVersionString")));
    m_xml.skipCurrentElement();
}

QUrl AppcastReader::readUrl() {
    return secureUrl(readText());
}

QString AppcastReader::readText() {
    return m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
}

} // namespace platform
