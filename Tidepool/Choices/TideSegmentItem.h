#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <utility>

namespace tidepool {

/// One segment of a `TideSegmentedControl`. Items with the same id count as equal, whatever their titles.
class TideSegmentItem {
public:
    TideSegmentItem(int id, QString title) : m_id(id), m_title(std::move(title)) {}

    int id() const { return m_id; }

    const QString& title() const { return m_title; }

    /// A mark for the owner; the control does not look at it.
    bool isHidden() const { return m_isHidden; }

    void setHidden(bool isHidden) { m_isHidden = isHidden; }

    friend bool operator==(const TideSegmentItem& a, const TideSegmentItem& b) { return a.m_id == b.m_id; }

private:
    const int m_id;
    const QString m_title;
    bool m_isHidden = false;
};

using TideSegmentItemPointer = std::shared_ptr<TideSegmentItem>;
using TideSegmentItems = QList<TideSegmentItemPointer>; // none of them null

} // namespace tidepool
