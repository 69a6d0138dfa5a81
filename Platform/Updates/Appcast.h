#pragma once

#include "Platform/Updates/AppcastItem.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace platform {

/// An update feed: RSS 2.0 with the elements of the namespace
/// `http://www.andymatuschak.org/xml-namespaces/sparkle`.
struct Appcast {
    /// In bytes. A longer feed is refused.
    static constexpr qsizetype maximumSize = qsizetype{1024} * 1024;

    /// Items without a version are left out.
    QList<AppcastItem> items;
    /// Says what is wrong, as a clause without a full stop; then there are no items.
    QString error;

    /// Refuses a document type, and with it every declaration of an entity.
    static Appcast read(const QByteArray& data);

    /// The highest version above `runningVersion` for everybody's Linux of at least its minimum system
    /// version, or null. The item belongs to the feed.
    const AppcastItem* newestAbove(const QString& runningVersion, const QString& systemVersion) const;
};

} // namespace platform
