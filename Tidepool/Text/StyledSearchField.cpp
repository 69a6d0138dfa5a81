#include "Tidepool/Text/StyledSearchField.h"

#include "Platform/Controls/Menu.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace tidepool {

StyledSearchField::StyledSearchField(QWidget* parent)
    : StyledTextField({}, std::make_unique<StyledSearchFieldCell>(), parent) {
    setMouseTracking(true);
    connect(this, &TextField::editingEnded, this, &StyledSearchField::remember);
}

StyledSearchField::~StyledSearchField() = default;

void StyledSearchField::setMaximumRecents(int count) {
    m_maximumRecents = count;
    cell().setShowsMenuMark(count > 0);
    setRecentSearches(m_recentSearches);
}

void StyledSearchField::setRecentSearches(const QStringList& searches) {
    QStringList kept = searches;
    kept.removeAll(QString());
    kept.removeDuplicates();
    kept = kept.first(std::min<qsizetype>(kept.size(), m_maximumRecents));
    if (kept == m_recentSearches)
        return;
    m_recentSearches = kept;
    Q_EMIT recentSearchesChanged(kept);
}

void StyledSearchField::remember() {
    if (m_maximumRecents > 0)
        setRecentSearches(QStringList(stringValue().trimmed()) + m_recentSearches);
}

void StyledSearchField::fillMenu() {
    m_menu->removeAllItems();
    m_menu->addItem(platform::MenuItem::sectionHeader(tr("Recent Searches")));
    for (const QString& recent : m_recentSearches)
        connect(&m_menu->addItem(recent), &QAction::triggered, this, [this, recent] { search(recent); });
    m_menu->addItem(platform::MenuItem::separator());
    connect(&m_menu->addItem(tr("Clear Recent Searches")), &QAction::triggered, this,
            [this] { setRecentSearches({}); });
}

void StyledSearchField::openMenu() {
    if (m_recentSearches.isEmpty() || !isEnabled())
        return;
    if (!m_menu)
        m_menu = std::make_unique<platform::Menu>();
    fillMenu();
    platform::popUp(*m_menu, nullptr, platform::below(*this), *this);
}

void StyledSearchField::search(const QString& text) {
    replaceText(text);
    sendNow();
}

void StyledSearchField::textDidChange() {
    StyledTextField::textDidChange();
    if (!m_sendsWholeSearchString || stringValue().isEmpty())
        sendNow();
}

bool StyledSearchField::keyDown(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Down && !m_recentSearches.isEmpty()) {
        openMenu();
        return true;
    }
    if (event.key() != Qt::Key_Escape || stringValue().isEmpty())
        return false;
    replaceText({});
    return true;
}

StyledSearchField::Part StyledSearchField::partAt(QPointF point) const {
    return cell().partAt(point, QRectF(rect()), context());
}

void StyledSearchField::mousePressEvent(QMouseEvent* event) {
    const Part part = event->button() == Qt::LeftButton ? partAt(event->position()) : Part::text;
    if (part == Part::searchButton)
        openMenu();
    if (part == Part::searchButton && !m_recentSearches.isEmpty())
        return;
    m_pressed = part == Part::cancelButton ? part : Part::text;
    cell().setPressedPart(m_pressed);
    if (m_pressed == Part::text)
        StyledTextField::mousePressEvent(event);
}

void StyledSearchField::mouseMoveEvent(QMouseEvent* event) {
    const Part part = partAt(event->position());
    if (m_pressed == Part::cancelButton)
        cell().setPressedPart(part == m_pressed ? part : Part::text);
    else if (event->buttons() != Qt::NoButton)
        StyledTextField::mouseMoveEvent(event);
    else
        setCursor(part == Part::text ? Qt::IBeamCursor : Qt::ArrowCursor);
}

void StyledSearchField::mouseReleaseEvent(QMouseEvent* event) {
    if (m_pressed == Part::text)
        return StyledTextField::mouseReleaseEvent(event);
    const bool isInside = partAt(event->position()) == m_pressed;
    m_pressed = Part::text;
    cell().setPressedPart(m_pressed);
    if (isInside && isEnabled())
        replaceText({});
}

} // namespace tidepool
